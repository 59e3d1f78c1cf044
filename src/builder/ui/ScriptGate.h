// SPDX-License-Identifier: GPL-3.0-or-later
// Which files the builder touches. Their names come with documents, and a document can come from anywhere.
#pragma once

#include <QString>

namespace orvane {

// Why the file of this name is no builder script, without the stop; empty when it may be one: a regular file
// named *.b1d, through links too, or one that is not there yet. Nothing is opened.
QString WhyNoScript(const QString& path);

// Where the name leads, all links followed.
QString ScriptTarget(const QString& path);

// That is in the folder of the document, or in one below it.
bool IsBesideDocument(const QString& path, const QString& documentPath);

} // namespace orvane
