// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/LeftOut.h"

#include "kit/AnsiString.h"

#include <QKeyEvent>

namespace orvane {

namespace {

constexpr int kMostShown = 40; // characters

} // namespace

QString CharactersOutsideDocuments(const QString& text) {
    QString outside;
    for (const QChar character : text)
        if (ToAnsi(QString(character)).LeftOut)
            outside += character;
    return outside;
}

bool IsForMenu(const QKeyEvent& key) {
    constexpr Qt::KeyboardModifiers kMeant = Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier;
    return (key.modifiers() & kMeant) == Qt::AltModifier && !key.text().isEmpty();
}

QString LeftOutMessage(const QString& characters) {
    const QString shown =
        characters.size() > kMostShown ? characters.left(kMostShown) + QChar(0x2026) : characters;
    return QStringLiteral("Left out, because a document cannot hold it: %1").arg(shown);
}

std::string FieldText(const QString& shown) { return ToAnsi(shown, Delimiter::Kept).Text; }

} // namespace orvane
