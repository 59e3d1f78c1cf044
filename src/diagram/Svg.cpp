// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagram/Svg.h"

#include "diagram/Extents.h"
#include "diagram/LetterWidths.h"
#include "diagram/Shapes.h"
#include "text/NumberText.h"
#include "text/XmlText.h"

namespace orvane::diagram {

namespace {

// Texts get the width that they were measured with, whatever the font is that a reader has.
constexpr std::string_view kStyle =
    "text{font-family:Helvetica,Arial,'Liberation Sans','Nimbus Sans',sans-serif;font-size:11px;fill:#000}\n"
    "text.title{font-size:13px;font-weight:bold}\n"
    ".box{fill:#eef3fa;stroke:#24476b;stroke-width:1.2}\n"
    ".start .box{stroke-width:2.2}\n"
    ".unreachable .box{fill:#fff;stroke-dasharray:4 3}\n"
    ".unreachable text{fill:#666}\n"
    ".line{fill:none;stroke:#333;stroke-width:1.1}\n"
    ".else .line{stroke-dasharray:5 3}\n"
    ".head{fill:#333;stroke:none}\n"
    ".sign{fill:none;stroke:#333;stroke-width:1.1}\n"
    ".error{fill:#c00;stroke:#fff;stroke-width:1}\n";

std::string At(Point point) { return NumberText(point.X) + "," + NumberText(point.Y); }

std::string PathData(const Path& line) {
    std::string data = "M" + At(line.Begin);
    for (const PathPiece& piece : line.Pieces)
        data += piece.IsCurve ? "C" + At(piece.First) + " " + At(piece.Second) + " " + At(piece.End)
                              : "L" + At(piece.End);
    return data;
}

std::string ArrowHeadPath(const Path& line) {
    const auto [end, one, other] = ArrowHead(line);
    return "<path class=\"head\" d=\"M" + At(end) + "L" + At(one) + "L" + At(other) + "Z\"/>\n";
}

class SvgWriter {
  public:
    SvgWriter(const Scene& scene, const Layout& layout, const TextSizes& sizes)
        : scene_(scene), layout_(layout), sizes_(sizes) {}

    std::string Write() {
        WriteHead();
        for (std::size_t i = 0; i < layout_.Edges.size(); ++i)
            WriteEdge(scene_.Edges[i], layout_.Edges[i]);
        if (layout_.Start)
            WriteStart(*layout_.Start);
        for (std::size_t i = 0; i < layout_.States.size(); ++i)
            WriteState(scene_.States[i], layout_.States[i].Box);
        svg_ += "</svg>\n";
        return std::move(svg_);
    }

  private:
    void WriteHead() {
        const Rect& bounds = layout_.Bounds;
        const std::string size =
            "width=\"" + NumberText(bounds.Width) + "\" height=\"" + NumberText(bounds.Height) + "\"";
        const std::string corner = "x=\"" + NumberText(bounds.X) + "\" y=\"" + NumberText(bounds.Y) + "\" ";
        svg_ = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
               "<svg xmlns=\"http://www.w3.org/2000/svg\" version=\"1.1\" " +
               size + " viewBox=\"" + NumberText(bounds.X) + " " + NumberText(bounds.Y) + " " +
               NumberText(bounds.Width) + " " + NumberText(bounds.Height) +
               "\">\n<style type=\"text/css\">\n" + std::string(kStyle) + "</style>\n<rect " + corner + size +
               " fill=\"#fff\"/>\n";
    }

    void WriteEdge(const SceneEdge& edge, const PlacedEdge& placed) {
        svg_ += "<g id=\"edge-" + NumberText(edge.From.Number()) + "-" + NumberText(edge.To.Number()) + "\"" +
                (edge.IsDashed ? " class=\"else\"" : "") + ">\n";
        WriteTitle(edge.Name);
        WriteLine(placed.Line);
        WriteLines(edge.Label, {placed.Label.X, placed.Label.Y});
        svg_ += "</g>\n";
    }

    void WriteLine(const Path& line) {
        svg_ += "<path class=\"line\" d=\"" + PathData(line) + "\"/>\n" + ArrowHeadPath(line);
    }

    void WriteStart(const PlacedStart& start) {
        const int radius = start.Dot.Width / 2;
        svg_ += "<g id=\"start\">\n<circle class=\"head\" cx=\"" + NumberText(start.Dot.X + radius) +
                "\" cy=\"" + NumberText(start.Dot.Y + radius) + "\" r=\"" + NumberText(radius) + "\"/>\n";
        WriteLine(start.Line);
        svg_ += "</g>\n";
    }

    void WriteState(const SceneState& state, const Rect& box) {
        svg_ += "<g id=\"state-" + NumberText(state.Number.Number()) + "\"" + ClassOf(state) + ">\n";
        WriteTitle(state.Name);
        svg_ += "<rect class=\"box\" x=\"" + NumberText(box.X) + "\" y=\"" + NumberText(box.Y) +
                "\" width=\"" + NumberText(box.Width) + "\" height=\"" + NumberText(box.Height) +
                "\" rx=\"5\"/>\n";
        Point at = TextCorner(state, box, sizes_);
        if (state.HasError) {
            WriteErrorSign(at);
            at.X += kSign;
        }
        WriteText(state.Title, TextRole::Title, at);
        at = {box.X + kBoxMargin, at.Y + sizes_.LineHeight(TextRole::Title)};
        WriteLines(state.Lines, at);
        svg_ += "</g>\n";
    }

    static std::string ClassOf(const SceneState& state) {
        std::string classes = state.IsStart ? " start" : "";
        classes += state.IsUnreachable ? " unreachable" : "";
        classes += state.HasError ? " faulty" : "";
        return classes.empty() ? "" : " class=\"" + classes.substr(1) + "\"";
    }

    void WriteTitle(const std::string& name) { svg_ += "<title>" + XmlText(name) + "</title>\n"; }

    void WriteLines(const std::vector<LabelLine>& lines, Point at) {
        for (const LabelLine& line : lines) {
            Point next = at;
            if (line.Loop) {
                WriteLoopSign(next);
                next.X += kSign;
            }
            if (line.Clock) {
                WriteClockSign(next);
                next.X += kSign;
            }
            WriteText(line.Text, TextRole::Line, next);
            at.Y += sizes_.LineHeight(TextRole::Line);
        }
    }

    // `at` is the upper left corner of the line.
    void WriteText(const std::string& text, TextRole role, Point at) {
        if (text.empty())
            return;
        const bool isTitle = role == TextRole::Title;
        const int base = at.Y + (isTitle ? kTitlePixels : kLinePixels);
        svg_ += std::string("<text ") + (isTitle ? "class=\"title\" " : "") + "x=\"" + NumberText(at.X) +
                "\" y=\"" + NumberText(base) + "\" textLength=\"" + NumberText(sizes_.Width(text, role)) +
                "\" lengthAdjust=\"spacingAndGlyphs\" xml:space=\"preserve\">" + XmlText(text) + "</text>\n";
    }

    void WriteClockSign(Point at) {
        const Point middle{at.X + 5, at.Y + 7};
        svg_ += "<path class=\"sign\" d=\"M" + At({middle.X - 4, middle.Y}) +
                "a4,4 0 1 0 8,0a4,4 0 1 0 -8,0M" + At({middle.X, middle.Y - 3}) + "v3h2\"/>\n";
    }

    void WriteLoopSign(Point at) {
        svg_ +=
            "<path class=\"sign\" d=\"M" + At({at.X + 8, at.Y + 5}) + "a4,4 0 1 0 1,4m1,-7l-2,3l-4,-1\"/>\n";
    }

    void WriteErrorSign(Point at) {
        svg_ += "<path class=\"error\" d=\"M" + At({at.X + 5, at.Y + 2}) +
                "l6,12h-12z\"/>\n"
                "<path fill=\"none\" stroke=\"#fff\" stroke-width=\"1.4\" d=\"M" +
                At({at.X + 5, at.Y + 6}) + "v4m0,1v2\"/>\n";
    }

    const Scene& scene_;
    const Layout& layout_;
    const TextSizes& sizes_;
    std::string svg_;
};

} // namespace

std::string SvgOf(const Scene& scene, const Layout& layout, const TextSizes& sizes) {
    return SvgWriter(scene, layout, sizes).Write();
}

} // namespace orvane::diagram
