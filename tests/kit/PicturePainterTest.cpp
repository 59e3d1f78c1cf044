// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/PicturePainter.h"

#include "diagram/HitTest.h"
#include "kit/MachinePicture.h"

#include <QApplication>
#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace orvane {
namespace {

using diagram::Hit;

FsmDocument FourStates() {
    FsmDocument document;
    document.General.FsmName = "M";
    document.State(1).Name = "Idle";
    document.State(2).Name = "Filling the long tank";
    document.State(3).Name = "Wait";
    document.State(4).Name = "Nowhere";
    document.Event(6).Name = "Start";
    document.Event(7).Name = "Full";
    document.State(1).Targets[6] = 2;
    document.State(2).Targets[7] = 3;
    document.State(2).Targets[6] = 2;
    document.State(3).Targets[kTimeoutRow] = 1;
    document.State(3).Targets[kElseRow] = 2;
    return document;
}

struct Drawn {
    explicit Drawn(const FsmDocument& document, double size = 1)
        : Size(size),
          Fonts(QApplication::font()),
          Scene(diagram::MakeScene(document, Fonts)),
          Layout(diagram::ColdLayout(Scene, Fonts, diagram::Direction::LeftToRight)) {}

    QImage Paint(const diagram::Scene& shown, const PictureLook& look = {}) const {
        QImage image(QSize(Layout.Bounds.Width, Layout.Bounds.Height) * Size, QImage::Format_RGB32);
        image.fill(look.Colours.Ground);
        QPainter painter(&image);
        painter.scale(Size, Size);
        painter.translate(-Layout.Bounds.X, -Layout.Bounds.Y);
        PaintPicture(painter, {shown, Layout, Fonts}, look,
                     QRectF(Layout.Bounds.X, Layout.Bounds.Y, Layout.Bounds.Width, Layout.Bounds.Height));
        return image;
    }

    // What is hit where the two images differ, with the number of such points.
    std::vector<std::pair<Hit, int>> HitsOfDifference(const QImage& one, const QImage& other) const {
        std::vector<std::pair<Hit, int>> hits;
        for (int y = 0; y < one.height(); ++y) {
            for (int x = 0; x < one.width(); ++x) {
                if (one.pixel(x, y) == other.pixel(x, y))
                    continue;
                const Hit hit =
                    HitAt(Layout, {int(x / Size) + Layout.Bounds.X, int(y / Size) + Layout.Bounds.Y}, 0);
                const auto known = std::find_if(hits.begin(), hits.end(),
                                                [&](const auto& entry) { return entry.first == hit; });
                if (known == hits.end())
                    hits.emplace_back(hit, 1);
                else
                    ++known->second;
            }
        }
        return hits;
    }

    double Size;
    PictureFonts Fonts;
    diagram::Scene Scene;
    diagram::Layout Layout;
};

void ExpectTextsWithinTheirPlaces(const Drawn& drawn) {
    const QImage whole = drawn.Paint(drawn.Scene);
    for (std::size_t i = 0; i < drawn.Scene.States.size(); ++i) {
        diagram::Scene without = drawn.Scene;
        without.States[i].Title.clear();
        const auto hits = drawn.HitsOfDifference(whole, drawn.Paint(without));
        ASSERT_EQ(hits.size(), 1u) << drawn.Scene.States[i].Title;
        EXPECT_EQ(hits.front().first, (Hit{i, {}})) << drawn.Scene.States[i].Title;
        EXPECT_GT(hits.front().second, 20) << drawn.Scene.States[i].Title;
    }
    for (std::size_t i = 0; i < drawn.Scene.Edges.size(); ++i) {
        diagram::Scene without = drawn.Scene;
        for (diagram::LabelLine& line : without.Edges[i].Label)
            line.Text.clear();
        const auto hits = drawn.HitsOfDifference(whole, drawn.Paint(without));
        ASSERT_EQ(hits.size(), 1u) << drawn.Scene.Edges[i].Name;
        EXPECT_EQ(hits.front().first, (Hit{{}, i})) << drawn.Scene.Edges[i].Name;
    }
}

bool Has(const QImage& image, const QColor& colour) {
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y) == colour)
                return true;
    return false;
}

TEST(PicturePainter, WritesEveryNameWhereAPressFindsIt) {
    ExpectTextsWithinTheirPlaces(Drawn(FourStates()));
    ExpectTextsWithinTheirPlaces(Drawn(FourStates(), 2));
}

TEST(PicturePainter, HasRoomForEveryLetterOfTheCodePage) {
    FsmDocument document;
    document.General.FsmName = "M";
    for (int state = 1; state <= 32; ++state) {
        for (int i = 0; i < 7; ++i) {
            const int byte = 32 + (state - 1) * 7 + i;
            document.State(state).Name += byte == 0xA4 ? '?' : char(byte);
        }
        document.State(state).Name += document.State(state).Name;
    }
    document.State(1).Name = "AVAVAVAVA";
    document.State(2).Name = "fffifififl";
    document.State(3).Name = "WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW";
    ExpectTextsWithinTheirPlaces(Drawn(document));
}

TEST(PicturePainter, DrawsLinesWhereAPressFindsThem) {
    const Drawn drawn(FourStates());
    PictureLook look;
    for (std::size_t i = 0; i < drawn.Scene.Edges.size(); ++i) {
        look.Marks.Taken = i;
        const QImage red = drawn.Paint(drawn.Scene, look);
        const diagram::Path& line = drawn.Layout.Edges[i].Line;
        const diagram::Point middle = diagram::PointsOn(line)[diagram::PointsOn(line).size() / 2];
        const diagram::Point end = line.Pieces.back().End;
        const auto at = [&](diagram::Point point) {
            return red.pixelColor(point.X - drawn.Layout.Bounds.X, point.Y - drawn.Layout.Bounds.Y);
        };
        EXPECT_GT(at(middle).red(), 180) << drawn.Scene.Edges[i].Name;
        EXPECT_LT(at(middle).green(), 160) << drawn.Scene.Edges[i].Name;
        const diagram::Point from =
            line.Pieces.size() > 1 ? line.Pieces[line.Pieces.size() - 2].End : line.Begin;
        EXPECT_EQ(at({(end.X * 3 + from.X) / 4, (end.Y * 3 + from.Y) / 4}), look.Colours.Running);
    }
}

TEST(PicturePainter, ShowsWhereTheMachineIsInRed) {
    const Drawn drawn(FourStates());
    PictureLook look;
    EXPECT_FALSE(Has(drawn.Paint(drawn.Scene, look), look.Colours.Running));
    look.Marks.Running = 2;
    const QImage red = drawn.Paint(drawn.Scene, look);
    const diagram::Rect& box = drawn.Layout.States[1].Box;
    const QRect around(box.X - drawn.Layout.Bounds.X - 2, box.Y - drawn.Layout.Bounds.Y - 2, box.Width + 4,
                       box.Height + 4);
    int points = 0;
    for (int y = 0; y < red.height(); ++y) {
        for (int x = 0; x < red.width(); ++x) {
            if (red.pixelColor(x, y) != look.Colours.Running)
                continue;
            ++points;
            EXPECT_TRUE(around.contains(x, y)) << x << ", " << y;
        }
    }
    EXPECT_GT(points, 2 * (box.Width + box.Height));
}

TEST(PicturePainter, LeavesOutTextsThatAreTooSmallToRead) {
    const Drawn drawn(FourStates());
    diagram::Scene withoutLabels = drawn.Scene; // with the room that they take
    for (diagram::SceneEdge& edge : withoutLabels.Edges)
        edge.Label.clear();
    for (diagram::SceneState& state : withoutLabels.States)
        std::fill(state.Lines.begin(), state.Lines.end(), diagram::LabelLine());
    diagram::Scene withoutNames = withoutLabels;
    for (diagram::SceneState& state : withoutNames.States)
        state.Title = "other";
    PictureLook look;
    look.Zoom = 0.45;
    EXPECT_EQ(drawn.Paint(drawn.Scene, look), drawn.Paint(withoutLabels, look));
    EXPECT_NE(drawn.Paint(drawn.Scene, look), drawn.Paint(withoutNames, look));
    look.Zoom = 0.2;
    EXPECT_EQ(drawn.Paint(drawn.Scene, look), drawn.Paint(withoutNames, look));
    look.Zoom = 1;
    EXPECT_NE(drawn.Paint(drawn.Scene, look), drawn.Paint(withoutLabels, look));
}

TEST(PicturePainter, PaintsOnADarkGroundWithLightLetters) {
    const Drawn drawn(FourStates());
    PictureLook look;
    look.Colours = DarkPicture();
    const QImage dark = drawn.Paint(drawn.Scene, look);
    EXPECT_TRUE(Has(dark, look.Colours.Ink));
    EXPECT_FALSE(Has(dark, Qt::white));
    EXPECT_FALSE(Has(dark, Qt::black));
}

TEST(MachinePicture, FillsItsSizeAndNothingElse) {
    const MachinePicture picture(FourStates(), {800, 600});
    EXPECT_FALSE(picture.IsEmpty());
    EXPECT_TRUE(picture.IsWhole());
    QImage image(picture.Size() + QSize(100, 100), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.translate(50, 50);
    picture.Paint(painter);
    painter.end();
    QRect ink;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y) != Qt::white)
                ink |= QRect(x, y, 1, 1);
    EXPECT_TRUE(QRect({50, 50}, picture.Size()).contains(ink));
    EXPECT_GT(ink.width() + 60, picture.Size().width());
    EXPECT_GT(ink.height() + 60, picture.Size().height());
}

TEST(MachinePicture, OfAnEmptyTableIsEmpty) {
    EXPECT_TRUE(MachinePicture(FsmDocument(), {800, 600}).IsEmpty());
}

TEST(MachinePicture, OfTooManyLinesIsTheNeighbourhoodOfTheFirstState) {
    FsmDocument document;
    for (int state = 1; state <= 100; ++state)
        for (int row = 6; row < 16; ++row)
            document.State(state).Targets[row] = (state * 7 + row * 13) % 100 + 1;
    const MachinePicture picture(document, {800, 600});
    EXPECT_FALSE(picture.IsWhole());
    EXPECT_FALSE(picture.IsEmpty());
}

} // namespace
} // namespace orvane
