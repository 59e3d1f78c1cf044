// SPDX-License-Identifier: GPL-3.0-or-later
#include "export/CsvText.h"

#include "text/EscapedUtf8.h"

#include <algorithm>
#include <utility>

namespace orvane::exports {

namespace {

char Separator(std::string_view text) {
    const std::string_view first = text.substr(0, text.find_first_of("\r\n"));
    char best = ',';
    for (const char candidate : {';', '\t'}) {
        if (std::count(first.begin(), first.end(), candidate) > std::count(first.begin(), first.end(), best))
            best = candidate;
    }
    return best;
}

constexpr ByteSet kEscapedInCsv =
    EscapedBytes([](unsigned char byte) { return byte == '"' || byte == '\r'; });
constexpr ByteSet kParting = BytesThat([](unsigned char byte) {
    return byte == '"' || byte == ',' || byte == ';' || byte == '\t' || byte == '\n' || byte == '\r';
});

class CsvScanner {
  public:
    explicit CsvScanner(std::string_view text) : text_(text), separator_(Separator(text)) {}

    std::optional<std::vector<CsvLine>> Scan() {
        while (at_ < text_.size()) {
            line_ = {{}, number_};
            while (TakeCell()) {
            }
            if (isUnclosed_)
                return std::nullopt;
            if (line_.Cells.size() > 1 || !line_.Cells.front().empty())
                lines_.push_back(std::move(line_));
        }
        return std::move(lines_);
    }

  private:
    // False when it was the last one of its line.
    bool TakeCell() {
        std::string cell = at_ < text_.size() && text_[at_] == '"' ? TakeQuoted() : std::string();
        while (at_ < text_.size() && text_[at_] != separator_ && text_[at_] != '\r' && text_[at_] != '\n')
            cell += text_[at_++];
        line_.Cells.push_back(std::move(cell));
        if (at_ == text_.size())
            return false;
        if (text_[at_] == separator_) {
            ++at_;
            return true;
        }
        TakeLineEnd();
        return false;
    }

    std::string TakeQuoted() {
        std::string cell;
        for (++at_; at_ < text_.size(); ++at_) {
            if (text_[at_] == '"') {
                if (at_ + 1 == text_.size() || text_[at_ + 1] != '"') {
                    ++at_;
                    return cell;
                }
                ++at_;
            }
            number_ += text_[at_] == '\n' ? 1 : 0;
            cell += text_[at_];
        }
        isUnclosed_ = true;
        return cell;
    }

    void TakeLineEnd() {
        if (text_[at_] == '\r' && at_ + 1 < text_.size() && text_[at_ + 1] == '\n')
            ++at_;
        ++at_;
        ++number_;
    }

    std::string_view text_;
    const char separator_;
    std::size_t at_ = 0;
    std::size_t number_ = 1;
    bool isUnclosed_ = false;
    CsvLine line_;
    std::vector<CsvLine> lines_;
};

} // namespace

std::string CsvCell(std::string_view ansi) {
    const bool isPlain =
        RunBefore(kParting, ansi) == ansi.size() && !ansi.starts_with(' ') && !ansi.ends_with(' ');
    if (isPlain)
        return ToUtf8(ansi);
    std::string quoted = "\"";
    AppendEscaped(quoted, ansi, kEscapedInCsv, [](std::string& out, std::string_view rest) {
        if (rest.front() == '"')
            out += "\"\"";
        else if (!rest.starts_with("\r\n"))
            out += '\n';
    });
    return quoted + "\"";
}

std::optional<std::vector<CsvLine>> CsvLines(std::string_view utf8) {
    if (utf8.starts_with(kUtf8Mark))
        utf8.remove_prefix(kUtf8Mark.size());
    return CsvScanner(utf8).Scan();
}

} // namespace orvane::exports
