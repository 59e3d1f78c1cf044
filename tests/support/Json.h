// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace orvane::test {

class JsonError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// A JSON value as test data needs it: texts, numbers, lists and objects. Asking a value for what it is not
// throws JsonError.
class JsonValue {
  public:
    // The whole text has to be one value.
    static JsonValue Parse(std::string_view text);

    const std::string& Text() const; // UTF-8
    int Number() const;              // whole numbers only
    const std::vector<JsonValue>& List() const;
    const std::map<std::string, JsonValue>& Members() const;
    const JsonValue& operator[](const std::string& member) const;
    bool Has(const std::string& member) const { return Members().count(member) != 0; }

  private:
    enum class Type { Null, Boolean, Number, Text, List, Object };
    friend class JsonParser;

    void Require(Type type, const char* name) const;

    Type type_ = Type::Null;
    std::string text_; // also the digits of a number and the word of a Boolean
    std::vector<JsonValue> list_;
    std::map<std::string, JsonValue> members_;
};

} // namespace orvane::test
