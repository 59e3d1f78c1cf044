// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/PicturePainter.h"

#include "diagram/Extents.h"
#include "diagram/Shapes.h"
#include "kit/AnsiString.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace orvane {

namespace {

using diagram::TextRole;

constexpr double kSmallestText = 5; // pixels of the screen, high; what is smaller is left out
constexpr double kRoundness = 5;    // of the corners of a box
constexpr double kThin = 1.1;       // widths of lines
constexpr double kBoxLine = 1.2;
constexpr double kThick = 2.2;
constexpr double kMarkLine = 3;
constexpr double kMarkDistance = 4; // of a frame from what it is around
constexpr double kReach = 16;       // of what is painted around the places of a layout

QPointF At(diagram::Point point) { return {qreal(point.X), qreal(point.Y)}; }

QRectF Area(const diagram::Rect& rect) {
    return {qreal(rect.X), qreal(rect.Y), qreal(rect.Width), qreal(rect.Height)};
}

QPainterPath CurveOf(const diagram::Path& line) {
    QPainterPath path(At(line.Begin));
    for (const diagram::PathPiece& piece : line.Pieces) {
        if (piece.IsCurve)
            path.cubicTo(At(piece.First), At(piece.Second), At(piece.End));
        else
            path.lineTo(At(piece.End));
    }
    return path;
}

class PicturePainter {
  public:
    PicturePainter(QPainter& painter, const PaintedPicture& picture, const PictureLook& look,
                   const QRectF& part)
        : painter_(painter),
          scene_(picture.Shown),
          layout_(picture.Places),
          fonts_(picture.Fonts),
          look_(look),
          colours_(look.Colours),
          part_(part.adjusted(-kReach, -kReach, kReach, kReach)),
          showsLines_(IsReadable(TextRole::Line)),
          showsTitles_(IsReadable(TextRole::Title)) {}

    // Boxes over lines, as a press of the mouse finds them.
    void Paint() {
        painter_.save();
        painter_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
        for (std::size_t i = 0; i < layout_.Edges.size(); ++i)
            PaintEdge(i);
        if (layout_.Start)
            PaintStart(*layout_.Start);
        for (std::size_t i = 0; i < layout_.States.size(); ++i) {
            if (IsSeen(Area(layout_.States[i].Box)))
                PaintState(i);
        }
        PaintFrame(look_.Marks.Current, QPen(colours_.Current, kThick));
        PaintFrame(look_.Marks.Focus, QPen(colours_.Ink, 1, Qt::DotLine));
        painter_.restore();
    }

  private:
    bool IsReadable(TextRole role) const { return fonts_.Base(role) * look_.Zoom >= kSmallestText; }
    bool IsSeen(const QRectF& area) const { return part_.intersects(area); }

    void PaintEdge(std::size_t index) {
        const diagram::SceneEdge& edge = scene_.Edges[index];
        const diagram::PlacedEdge& placed = layout_.Edges[index];
        const bool isTaken = look_.Marks.Taken == index;
        QPen pen(isTaken ? colours_.Running : colours_.Line, isTaken ? kThick : kThin);
        if (edge.IsDashed)
            pen.setDashPattern({5 / pen.widthF(), 3 / pen.widthF()});
        PaintLine(placed.Line, pen);
        if (showsLines_ && IsSeen(Area(placed.Label)))
            PaintLines(edge.Label, {placed.Label.X, placed.Label.Y}, colours_.Ink);
    }

    void PaintLine(const diagram::Path& line, const QPen& pen) {
        const QPainterPath curve = CurveOf(line);
        if (!IsSeen(curve.controlPointRect().adjusted(-1, -1, 1, 1)))
            return;
        painter_.strokePath(curve, pen);
        const auto [end, one, other] = diagram::ArrowHead(line);
        painter_.setPen(Qt::NoPen);
        painter_.setBrush(pen.color());
        painter_.drawPolygon(QPolygonF({At(end), At(one), At(other)}));
    }

    void PaintStart(const diagram::PlacedStart& start) {
        PaintLine(start.Line, QPen(colours_.Line, kThin));
        painter_.setPen(Qt::NoPen);
        painter_.setBrush(colours_.Line);
        painter_.drawEllipse(Area(start.Dot));
    }

    void PaintState(std::size_t index) {
        const diagram::SceneState& state = scene_.States[index];
        const diagram::Rect& box = layout_.States[index].Box;
        PaintBox(state, Area(box));
        const QColor ink = state.IsUnreachable ? colours_.FadedInk : colours_.Ink;
        if (showsTitles_)
            PaintTexts(state, TextCorner(state, box, fonts_), ink);
        else
            PaintNumber(state, Area(box), ink);
        PaintFindings(state, Area(box));
    }

    // An error that the box tells by itself has its sign in the text.
    void PaintFindings(const diagram::SceneState& state, const QRectF& box) {
        const std::size_t number = IndexIn(TableColumns(), state.Number);
        const bool isFaulty = look_.Marks.Faulty.test(number);
        if ((isFaulty || look_.Marks.Warned.test(number)) && !state.HasError)
            PaintSign(isFaulty ? colours_.Error : colours_.Warning, box.topRight() - QPointF(8, 5));
    }

    void PaintBox(const diagram::SceneState& state, const QRectF& box) {
        const bool runs = look_.Marks.Running == state.Number;
        QPen pen(runs ? colours_.Running : colours_.BoxLine, runs            ? kMarkLine
                                                             : state.IsStart ? kThick
                                                                             : kBoxLine);
        if (state.IsUnreachable)
            pen.setDashPattern({4 / pen.widthF(), 3 / pen.widthF()});
        painter_.setPen(pen);
        painter_.setBrush(state.IsUnreachable ? colours_.Ground : colours_.Box);
        painter_.drawRoundedRect(box, kRoundness, kRoundness);
    }

    void PaintTexts(const diagram::SceneState& state, diagram::Point at, const QColor& ink) {
        const int below = at.Y + fonts_.LineHeight(TextRole::Title);
        const int left = at.X;
        if (state.HasError) {
            PaintSign(colours_.Error, At(at) + QPointF(5, Lowered()));
            at.X += diagram::kSign;
        }
        PaintText(state.Title, TextRole::Title, at, ink);
        if (showsLines_)
            PaintLines(state.Lines, {left, below}, ink);
    }

    // What is left of a title that is too small: the number, as large as the box has room for.
    void PaintNumber(const diagram::SceneState& state, const QRectF& box, const QColor& ink) {
        QFont font = fonts_.Font(TextRole::Title);
        font.setPixelSize(int(std::max(1.0, std::min(box.height() * 0.8, box.width() / 2.2))));
        painter_.setFont(font);
        painter_.setPen(state.HasError ? colours_.Error : ink);
        painter_.drawText(box, Qt::AlignCenter, QString::number(state.Number.Number()));
    }

    void PaintLines(const std::vector<diagram::LabelLine>& lines, diagram::Point at, const QColor& ink) {
        for (const diagram::LabelLine& line : lines) {
            diagram::Point next = at;
            if (line.Loop) {
                PaintLoopSign(At(next) + QPointF(0, Lowered()), ink);
                next.X += diagram::kSign;
            }
            if (line.Clock) {
                PaintClockSign(At(next) + QPointF(0, Lowered()), ink);
                next.X += diagram::kSign;
            }
            PaintText(line.Text, TextRole::Line, next, ink);
            at.Y += fonts_.LineHeight(TextRole::Line);
        }
    }

    // Signs are made for lines of 14 pixels; in higher ones they stand in the middle.
    double Lowered() const { return (fonts_.LineHeight(TextRole::Line) - 14) / 2.0; }

    // `at` is the upper left corner of the line.
    void PaintText(const std::string& text, TextRole role, diagram::Point at, const QColor& ink) {
        painter_.setFont(fonts_.Font(role));
        painter_.setPen(ink);
        painter_.drawText(At({at.X, at.Y + fonts_.Base(role)}), FromAnsi(text));
    }

    void PaintClockSign(const QPointF& at, const QColor& ink) {
        const QPointF middle = at + QPointF(5, 7);
        painter_.setPen(QPen(ink, kThin));
        painter_.setBrush(Qt::NoBrush);
        painter_.drawEllipse(middle, 4, 4);
        painter_.drawPolyline(QPolygonF({middle - QPointF(0, 3), middle, middle + QPointF(2, 0)}));
    }

    // A circle that comes back to where it began, with an arrow.
    void PaintLoopSign(const QPointF& at, const QColor& ink) {
        QPainterPath circle;
        const QRectF around(at + QPointF(1, 3), QSizeF(8, 8));
        circle.arcMoveTo(around, 40);
        circle.arcTo(around, 40, 290);
        const QPointF end = at + QPointF(8.1, 4.4);
        circle.moveTo(end + QPointF(1, -3.5));
        circle.lineTo(end + QPointF(0.2, 0.4));
        circle.lineTo(end - QPointF(3.6, 0.4));
        painter_.strokePath(circle, QPen(ink, kThin));
    }

    // A triangle with an exclamation mark; `top` is its upper corner's place.
    void PaintSign(const QColor& ground, const QPointF& top) {
        const QPointF at = top + QPointF(0, 2);
        painter_.setPen(QPen(colours_.Ground, 1));
        painter_.setBrush(ground);
        painter_.drawPolygon(QPolygonF({at, at + QPointF(6, 12), at + QPointF(-6, 12)}));
        painter_.setPen(QPen(colours_.SignInk, 1.4));
        painter_.drawLine(at + QPointF(0, 4), at + QPointF(0, 8));
        painter_.drawLine(at + QPointF(0, 9.3), at + QPointF(0, 10.6));
    }

    void PaintFrame(const diagram::Hit& hit, QPen pen) {
        pen.setWidthF(pen.widthF() / std::min(look_.Zoom, 1.0));
        painter_.setPen(pen);
        painter_.setBrush(Qt::NoBrush);
        if (!hit.State && !hit.Edge)
            return;
        const diagram::Rect& rect =
            hit.State ? layout_.States[*hit.State].Box : layout_.Edges[*hit.Edge].Label;
        const double distance = pen.style() == Qt::DotLine ? kMarkDistance - 2 : kMarkDistance;
        painter_.drawRoundedRect(Area(rect).adjusted(-distance, -distance, distance, distance), kRoundness,
                                 kRoundness);
    }

    QPainter& painter_;
    const diagram::Scene& scene_;
    const diagram::Layout& layout_;
    const PictureFonts& fonts_;
    const PictureLook& look_;
    const PictureColours& colours_;
    const QRectF part_;
    const bool showsLines_;
    const bool showsTitles_;
};

} // namespace

void PaintPicture(QPainter& painter, const PaintedPicture& picture, const PictureLook& look,
                  const QRectF& part) {
    PicturePainter(painter, picture, look, part).Paint();
}

} // namespace orvane
