// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/TableTiles.h"

#include "print/PagePlan.h"
#include "print/TableTexts.h"

namespace orvane::print {

namespace {

// Which rows or columns stand on a page: from First up to End.
struct Span {
    std::size_t First;
    std::size_t End;
};

// Everything but the heads in pages of at most `room`, each with one at least.
std::vector<Span> Spans(const std::vector<int>& lengths, int room) {
    std::vector<Span> spans = {{1, 1}};
    int used = 0;
    for (std::size_t i = 1; i < lengths.size(); ++i) {
        if (used + lengths[i] > room && used != 0) {
            spans.push_back({i, i});
            used = 0;
        }
        used += lengths[i];
        spans.back().End = i + 1;
    }
    return spans;
}

// As few pages as there must be, each with about as much on it.
std::vector<Span> EvenSpans(const std::vector<int>& lengths, int room) {
    const std::size_t pages = Spans(lengths, room).size();
    int tooLittle = 0;
    while (room - tooLittle > 1) {
        const int middle = tooLittle + (room - tooLittle) / 2;
        (Spans(lengths, middle).size() > pages ? tooLittle : room) = middle;
    }
    return Spans(lengths, room);
}

class TilesWriter {
  public:
    TilesWriter(PageFlow& flow, const FsmDocument& document)
        : flow_(flow),
          table_(MeasuredTable(document, {flow.Width(), flow.Bottom() - flow.Top()}, flow.Measure())) {}

    void Write() {
        flow_.BeginChapter("Table");
        columns_ = EvenSpans(table_.Widths, flow_.Width() - table_.Widths.front());
        rows_ = EvenSpans(table_.Heights, PageRoom({}));
        // The plan takes from the room, which may cost a page and the plan another line.
        rows_ = EvenSpans(table_.Heights, PageRoom({rows_.size() + 1, columns_.size()}));
        PagePlan plan{rows_.size(), columns_.size()};
        for (plan.Row = 0; plan.Row < plan.Rows; ++plan.Row) {
            for (plan.Column = 0; plan.Column < plan.Columns; ++plan.Column) {
                if (plan.Row + plan.Column != 0)
                    flow_.BeginPage();
                WritePage(plan);
            }
        }
    }

  private:
    int PageRoom(const PagePlan& plan) const {
        return flow_.Room() - PlanHeight(plan, flow_.Measure()) - table_.Heights.front();
    }

    void WritePage(const PagePlan& plan) {
        flow_.Put(0, Face::Small, "* an action, which stands in the listing");
        WritePlan(flow_, plan);
        const Span& columns = columns_[plan.Column];
        WriteRow(0, columns);
        for (std::size_t row = rows_[plan.Row].First; row < rows_[plan.Row].End; ++row)
            WriteRow(row, columns);
    }

    void WriteRow(std::size_t row, const Span& columns) {
        int x = 0;
        WriteCell(row, 0, x);
        for (std::size_t column = columns.First; column < columns.End; ++column)
            WriteCell(row, column, x);
        flow_.Skip(table_.Heights[row]);
    }

    void WriteCell(std::size_t row, std::size_t column, int& x) {
        const Box box{x, flow_.At(), table_.Widths[column], table_.Heights[row]};
        const bool isHead = row == 0 || column == 0;
        const Face face = isHead ? Face::Bold : Face::Body;
        if (isHead)
            flow_.Current().Grounds.push_back({box, Shade::Light});
        DrawFrame(flow_.Current(), box);
        int y = box.Y + kCellGap;
        for (const std::string& line : table_.Cells[row][column]) {
            if (!line.empty())
                flow_.Current().Texts.push_back({x + kCellGap, y, face, line});
            y += flow_.Measure().LineHeight(face);
        }
        x += box.Width;
    }

    PageFlow& flow_;
    const PrintedTable table_;
    std::vector<Span> columns_;
    std::vector<Span> rows_;
};

} // namespace

void WriteTable(PageFlow& flow, const FsmDocument& document) { TilesWriter(flow, document).Write(); }

} // namespace orvane::print
