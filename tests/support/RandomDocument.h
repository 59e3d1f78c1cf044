// SPDX-License-Identifier: GPL-3.0-or-later
// Random documents over the whole range of what a document can hold, and random edits of them.
#pragma once

#include "core/FsmDocument.h"

#include <rapidcheck.h>

#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

namespace orvane {

// A counterexample is shown as the file that holds it. Beside the document, where the printing looks for it.
void showValue(const FsmDocument& document, std::ostream& out);

} // namespace orvane

namespace orvane::test {

// One change of a document, with what it says in a counterexample.
struct DocumentEdit {
    std::string What;
    std::function<void(FsmDocument&)> Apply;
};
void showValue(const DocumentEdit& edit, std::ostream& out);

// A text that a field can hold: any byte but the delimiter, line breaks CR LF only.
rc::Gen<std::string> AnyText();

// Sets any field of any record, or a whole column or row at once.
rc::Gen<DocumentEdit> AnyEdit();

// Of an empty document up to a full table, with any timing modes, widths and view options.
rc::Gen<FsmDocument> AnyDocument();

// What is left of a document after it has been written to a file and read again: everything but the editors'
// last tabs and the records of the rows without events.
FsmDocument StoredPart(FsmDocument document);

// Bytes that are made of the format's own words and numbers, in no order.
rc::Gen<std::string> TagSoup();

// The file of a document with some bytes cut, doubled, overwritten or put in.
rc::Gen<std::string> DamagedFile();

} // namespace orvane::test
