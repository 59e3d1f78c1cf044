// SPDX-License-Identifier: GPL-3.0-or-later
// Characters that a field does not take, because a document could not hold them.
#pragma once

#include <QString>

#include <string>

class QKeyEvent;

namespace orvane {

// The characters of the text outside Windows-1252, and the delimiter, in their order.
QString CharactersOutsideDocuments(const QString& text);

// A letter that was pressed with Alt is meant for a menu: it is no text.
bool IsForMenu(const QKeyEvent& key);

// What the window says about them.
QString LeftOutMessage(const QString& characters);

// What stands in a field as document text. A delimiter stays: a field has one only when its document had.
std::string FieldText(const QString& shown);

} // namespace orvane
