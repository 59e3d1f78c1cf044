// SPDX-License-Identifier: GPL-3.0-or-later
// The real main window with the picture of the machine beside the table.
#pragma once

#include "diagram/ui/picDiagram.h"

#include "support/ui/Controls.h"
#include "support/ui/TableFixture.h"

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QImage>
#include <QLabel>
#include <QMenu>
#include <QScrollBar>
#include <QWheelEvent>

#include <gmock/gmock.h>

namespace orvane {

// 1 and 2 lead to each other; what leads on from 2 shares a line.
inline FsmDocument ThreeStates() {
    FsmDocument document = PumpDocument();
    document.State(3).Name = "Stopped";
    document.Event(8).Name = "Break";
    document.Event(8).Code = ";break?";
    document.Event(9).Name = "Halt";
    document.Event(9).Code = ";halt?";
    document.State(2).Targets[8] = 3;
    document.State(2).Targets[9] = 3;
    document.State(3).Targets[6] = 1;
    return document;
}

inline FsmDocument Ring(int states, int linesEach) {
    FsmDocument document = PumpDocument();
    for (int state = 1; state <= states; ++state) {
        document.State(state).Name = "State" + std::to_string(state);
        for (int line = 0; line < linesEach; ++line) {
            document.Event(6 + line).Name = "Event" + std::to_string(line);
            document.Event(6 + line).Code = ";?";
            document.State(state).Targets[6 + line] = (state + line) % states + 1;
        }
    }
    return document;
}

class DiagramFixture : public TableFixture {
  protected:
    void Open(const FsmDocument& document) {
        StartOn(document);
        Window().resize(1200, 700);
        Window().activateWindow();
        Trigger("mnuViewDiagram");
        QApplication::processEvents();
        ASSERT_NE(View(), nullptr);
    }
    picDiagram* View() { return Find<picDiagram>("picDiagram"); }
    bool HasState(int state) { return !View()->StateRect(state).isEmpty(); }
    bool HasEdge(int from, int to) { return !View()->EdgeRect(from, to).isEmpty(); }
    Cell Current() { return {Grid()->currentIndex().row(), Grid()->currentIndex().column()}; }
    void GoTo(int row, int column) { Grid()->setCurrentIndex(Grid()->model()->index(row, column)); }
    void ClickAt(QPoint point) { QTest::mouseClick(View()->viewport(), Qt::LeftButton, {}, point); }
    // On the line, beside its label.
    QPoint OnLine(int from, int to) {
        const QRect label = View()->EdgeRect(from, to);
        const diagram::Scene& scene = View()->Picture().Shown();
        for (std::size_t i = 0; i < scene.Edges.size(); ++i) {
            if (scene.Edges[i].From != StateNumber(from) || scene.Edges[i].To != StateNumber(to))
                continue;
            for (int y = 0; y < View()->viewport()->height(); y += 2) {
                for (int x = 0; x < View()->viewport()->width(); x += 2) {
                    if (!label.contains(x, y) && View()->HitAtViewport({x, y}) == diagram::Hit{{}, i})
                        return {x, y};
                }
            }
        }
        ADD_FAILURE() << "no line";
        return {};
    }
    QMenu* List() {
        auto* list = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        return list != nullptr && list->objectName() == QLatin1String("mnuWays") ? list : nullptr;
    }
    std::vector<std::string> Listed() {
        std::vector<std::string> texts;
        for (const QAction* action : List()->actions())
            texts.push_back(action->text().toStdString());
        return texts;
    }
    std::string Says() {
        const auto* label = Find<QLabel>("lblDiagram");
        return label->isVisible() ? label->text().toStdString() : "";
    }
    void Toggle(const char* name) { Find<QAction>(name)->trigger(); }
    void Press(int key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(View(), Qt::Key(key), modifiers);
    }
    void Wheel(QPoint at, int notches, Qt::KeyboardModifiers modifiers) {
        QWheelEvent event(at, View()->viewport()->mapToGlobal(at), {}, {0, notches * 120}, Qt::NoButton,
                          modifiers, Qt::NoScrollPhase, false);
        QApplication::sendEvent(View()->viewport(), &event);
    }
    bool Shows(const QColor& colour, const QRect& part) {
        const QImage image = View()->viewport()->grab().toImage();
        const double dots = image.devicePixelRatio();
        for (int y = part.top(); y <= part.bottom(); ++y) {
            for (int x = part.left(); x <= part.right(); ++x) {
                const QPoint at(int(x * dots), int(y * dots));
                if (image.rect().contains(at) && image.pixelColor(at) == colour)
                    return true;
            }
        }
        return false;
    }
    std::string Focused() {
        const diagram::Hit hit = View()->Focused();
        const diagram::Scene& scene = View()->Picture().Shown();
        return hit.State ? scene.States[*hit.State].Name : hit.Edge ? scene.Edges[*hit.Edge].Name : "";
    }
};

} // namespace orvane
