// SPDX-License-Identifier: GPL-3.0-or-later
#include "kit/EditedLabel.h"

namespace orvane {

EditedLabel::EditedLabel(QWidget* parent, const QString& what) : QLabel(parent) {
    setObjectName(QStringLiteral("lblEdited"));
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    QFont bold = font();
    bold.setBold(true);
    setFont(bold);
    ShowEdited(what);
}

void EditedLabel::ShowEdited(const QString& what) {
    setText(what);
    setToolTip(Qt::mightBeRichText(what) ? what.toHtmlEscaped() : what);
}

} // namespace orvane
