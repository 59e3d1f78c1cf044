// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/ui/NextStateMarker.h"

#include <QPainter>
#include <QPolygonF>

namespace orvane {

namespace {

constexpr int kMarkerSize = 14; // pixels

} // namespace

NextStateMarker::NextStateMarker(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("picNextStateMarker"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    resize(kMarkerSize, kMarkerSize);
    hide();
}

void NextStateMarker::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(96, 64, 0), 1));
    painter.setBrush(QColor(255, 255, 0));
    painter.drawPolygon(QPolygonF({{1.5, 2.5}, {12.5, 2.5}, {7.0, 12.5}}));
}

} // namespace orvane
