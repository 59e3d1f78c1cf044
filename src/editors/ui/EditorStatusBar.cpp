// SPDX-License-Identifier: GPL-3.0-or-later
#include "editors/ui/EditorStatusBar.h"

#include "kit/ElidedLabel.h"
#include "kit/StatusPlace.h"

#include <QApplication>
#include <QKeyEvent>

namespace orvane {

EditorStatusBar::EditorStatusBar(QWidget* parent)
    : QStatusBar(parent),
      Panel1(AddPanel(QStringLiteral("Panel1"), QStringLiteral("CAPS"))),
      Panel2(AddPanel(QStringLiteral("Panel2"), QStringLiteral("Ovr"))),
      Panel3(AddPanel(QStringLiteral("Panel3"), QStringLiteral("Line 12345, Col 123"))) {
    setObjectName(QStringLiteral("StatusBar1"));
    Panel1->setText(QStringLiteral("CAPS"));
    Panel1->setEnabled(false);
}

// Messages are shown beside the panels, not over them.
QLabel* EditorStatusBar::AddPanel(const QString& name, const QString& widestText) {
    auto* panel = new ElidedLabel(this);
    panel->setObjectName(name);
    panel->setMinimumWidth(panel->fontMetrics().horizontalAdvance(widestText));
    addPermanentWidget(new StatusPlace(*panel, this));
    return panel;
}

void EditorStatusBar::ShowOvertype(bool overtype) {
    Panel2->setText(overtype ? QStringLiteral("Ovr") : QStringLiteral("Ins"));
}

void EditorStatusBar::ShowCaret(const QString& readOut) { Panel3->setText(readOut); }

// Nothing tells the state of Caps Lock on every platform; the letters that are typed do.
bool EditorStatusBar::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const QString text = key->text();
        if (text.size() == 1 && text.front().isLetter() && text.front().isUpper() != text.front().isLower())
            Panel1->setEnabled(text.front().isUpper() != key->modifiers().testFlag(Qt::ShiftModifier));
    }
    return QStatusBar::eventFilter(watched, event);
}

void EditorStatusBar::showEvent(QShowEvent* event) {
    QStatusBar::showEvent(event);
    clearMessage(); // it was about another piece of the document
    QApplication::instance()->installEventFilter(this);
}

void EditorStatusBar::hideEvent(QHideEvent* event) {
    QApplication::instance()->removeEventFilter(this);
    QStatusBar::hideEvent(event);
}

} // namespace orvane
