// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace orvane {

enum class MessageIcon { None, Warning, Critical };
enum class MessageButtons { Ok, YesNo };

// What the user has to be told or asked. The engine says it, a window shows it.
struct UserMessage {
    std::string Text;
    std::string Title = "Orvane";
    MessageIcon Icon = MessageIcon::None;
    MessageButtons Buttons = MessageButtons::Ok;

    bool operator==(const UserMessage&) const = default;
};

} // namespace orvane
