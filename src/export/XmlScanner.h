// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orvane::exports {

// The begin or the end of an element. Names are without their prefix, texts UTF-8.
struct XmlTag {
    std::string Name;
    std::vector<std::pair<std::string, std::string>> Attributes;
    bool Opens = false;
    bool Closes = false; // both for an empty element
    std::size_t Line = 1;

    // Empty when there is none.
    std::string Attribute(std::string_view name) const;
};

// The tags of an XML text, one after the other; what stands between them is passed over. Throws ImportFault
// when the text is no XML.
class XmlScanner {
  public:
    explicit XmlScanner(std::string_view utf8) : text_(utf8) {}

    // None at the end, when all elements are closed.
    std::optional<XmlTag> Next();

  private:
    [[noreturn]] void Fail(const std::string& why) const;
    void Advance(std::size_t count);
    bool StandsHere(std::string_view word) const { return text_.substr(at_, word.size()) == word; }
    void SkipTo(std::string_view end);
    void SkipBlanks();
    bool SkipNoElement();
    std::string TakeName();
    void TakeAttribute(XmlTag& tag);
    std::string Resolved(std::string_view value) const;
    void Track(const XmlTag& tag);

    std::string_view text_;
    std::size_t at_ = 0;
    std::size_t line_ = 1;
    std::vector<std::string> open_;
};

} // namespace orvane::exports
