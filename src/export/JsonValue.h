// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace orvane::exports {

struct JsonValue {
    enum class Type { Null, Boolean, Number, Text, List, Object };

    Type Kind = Type::Null;
    std::string Text;               // UTF-8; of numbers and words what stands there
    std::vector<JsonValue> List;    // items, or the values of members in their order
    std::vector<std::string> Names; // of the members, UTF-8
    std::size_t Line = 1;
};

// The whole text has to be one value (RFC 8259), at most 64 deep. Throws ImportFault when it is none.
JsonValue ParseJson(std::string_view utf8);

} // namespace orvane::exports
