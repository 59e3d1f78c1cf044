// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/CellBlockText.h"

#include "core/NameMatch.h"
#include "table/CellText.h"
#include "text/AnsiText.h"

#include <algorithm>

namespace orvane {

namespace {

std::string OneLine(std::string text) {
    for (const char character : {'\t', '\r', '\n'})
        text = Replace(text, character, ' ');
    return text;
}

std::vector<std::string_view> Split(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    for (std::size_t end = text.find(separator); end != std::string_view::npos; end = text.find(separator)) {
        parts.push_back(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    parts.push_back(text);
    return parts;
}

// Without the end of the last line, which would be a line of its own.
std::vector<std::string_view> LinesOf(std::string_view text) {
    std::vector<std::string_view> lines = Split(text, '\n');
    if (lines.back().empty())
        lines.pop_back();
    for (std::string_view& line : lines) {
        if (!line.empty() && line.back() == '\r')
            line.remove_suffix(1);
    }
    return lines;
}

// None for what is no state.
std::optional<BlockCell> CellOfText(const FsmDocument& document, std::string_view text) {
    std::string_view label = Trim(text);
    if (label.empty())
        return BlockCell{kNoState, std::string()};
    if (label == "*")
        return BlockCell{kNoState, std::nullopt};
    if (label.back() == '*' && !StateCalled(document, label))
        label.remove_suffix(1);
    const std::optional<StateNumber> state = TargetMeant(document, label);
    if (!state)
        return std::nullopt;
    return *state == kNoState ? BlockCell{kNoState, std::string()} : BlockCell{*state, std::nullopt};
}

} // namespace

std::string TextOfCells(const FsmDocument& document, const CellChoice& choice) {
    std::string text;
    for (const RowNumber row : choice.Rows) {
        for (const StateNumber state : choice.States) {
            text += state == choice.States.front() ? "" : "\t";
            text += OneLine(TransitionText(document, {row, state}));
        }
        text += '\n';
    }
    return text;
}

ReadBlock BlockOfText(const FsmDocument& document, std::string_view text) {
    CellBlock block;
    const std::vector<std::string_view> lines = LinesOf(text);
    for (const std::string_view line : lines)
        block.Columns = std::max(block.Columns, Split(line, '\t').size());
    for (const std::string_view line : lines) {
        const std::vector<std::string_view> texts = Split(line, '\t');
        for (const std::string_view cell : texts) {
            const std::optional<BlockCell> content = CellOfText(document, cell);
            if (!content)
                return {std::nullopt, std::string(Trim(cell))};
            block.Cells.push_back(*content);
        }
        block.Cells.resize(block.Cells.size() + block.Columns - texts.size());
    }
    return {std::move(block), {}};
}

} // namespace orvane
