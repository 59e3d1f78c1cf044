// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/ui/PagePane.h"

#include "print/ui/Printout.h"

#include <QPainter>

#include <algorithm>
#include <utility>

namespace orvane {

namespace {

constexpr int kPageMargin = 8; // pixels around the page

} // namespace

PagePane::PagePane(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("picPage"));
    setAccessibleName(tr("Preview"));
    setBackgroundRole(QPalette::Dark);
    setAutoFillBackground(true);
}

void PagePane::Show(std::shared_ptr<const Printout> printout, int page) {
    printout_ = std::move(printout);
    page_ = page;
    update();
}

QSize PagePane::sizeHint() const { return {460, 600}; }

void PagePane::paintEvent(QPaintEvent*) {
    if (!printout_ || page_ >= printout_->Pages())
        return;
    const QRect sheet = printout_->Paper().fullRectPixels(kTwipsPerInch);
    const QRect printable = printout_->Paper().paintRectPixels(kTwipsPerInch);
    const double scale = std::min(double(width() - 2 * kPageMargin) / sheet.width(),
                                  double(height() - 2 * kPageMargin) / sheet.height());
    if (scale <= 0)
        return;
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.translate((width() - sheet.width() * scale) / 2, (height() - sheet.height() * scale) / 2);
    painter.scale(scale, scale);
    painter.fillRect(sheet, Qt::white);
    painter.translate(printable.topLeft());
    printout_->PaintPage(painter, page_);
}

} // namespace orvane
