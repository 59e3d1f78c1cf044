// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/ui/Printout.h"

#include "core/Length.h"
#include "print/ui/SheetPainter.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>

#include <utility>

namespace orvane {

namespace {

constexpr int kPixelsPerInch = 96; // of a machine's picture

QSize Printable(const QPageLayout& paper, int resolution) { return paper.paintRectPixels(resolution).size(); }

print::Parts WithPicture(print::Parts parts, const MachinePicture& picture) {
    if (!picture.IsEmpty())
        parts.Drawn = {{picture.Size().width() * kTwipsPerPixel, picture.Size().height() * kTwipsPerPixel},
                       picture.IsWhole()};
    return parts;
}

print::Paper PaperOf(const QPageLayout& paper) {
    const QSize room = Printable(paper, kTwipsPerInch);
    return {room.width(), room.height()};
}

} // namespace

Printout::Printout(const FsmDocument& document, const print::CoverFacts& facts, const print::Parts& parts,
                   const QPageLayout& paper, std::shared_ptr<const MachinePicture> picture)
    : paper_(paper),
      picture_(std::move(picture)),
      sheets_(print::BookletOf(document, facts, WithPicture(parts, *picture_), PaperOf(paper), letters_)) {}

std::shared_ptr<const MachinePicture> PictureFor(const FsmDocument& document, const QPageLayout& paper) {
    return std::make_shared<const MachinePicture>(document, Printable(paper, kPixelsPerInch));
}

void Printout::PaintPage(QPainter& painter, int page) const {
    PaintSheet(painter, sheets_[std::size_t(page)], letters_, *picture_);
}

bool Printout::PaintOn(QPagedPaintDevice& device, int resolution, int first, int last,
                       const std::stop_token& stop) const {
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    const double scale = double(resolution) / kTwipsPerInch;
    painter.scale(scale, scale);
    for (int page = first; page <= last; ++page) {
        if (stop.stop_requested() || (page != first && !device.newPage()))
            return false;
        PaintPage(painter, page);
    }
    return painter.end();
}

QByteArray Printout::Pdf(const QString& title, const std::stop_token& stop) const {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (!buffer.open(QIODevice::WriteOnly))
        return {};
    {
        QPdfWriter writer(&buffer);
        writer.setTitle(title);
        writer.setCreator(QStringLiteral("Orvane"));
        writer.setPageLayout(paper_);
        writer.setResolution(kTwipsPerInch);
        if (!PaintOn(writer, kTwipsPerInch, 0, Pages() - 1, stop))
            return {};
    }
    return bytes;
}

} // namespace orvane
