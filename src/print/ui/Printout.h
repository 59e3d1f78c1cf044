// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "kit/MachinePicture.h"
#include "print/Booklet.h"
#include "print/ui/PaperLetters.h"

#include <QByteArray>
#include <QPageLayout>

#include <memory>
#include <stop_token>

class QPagedPaintDevice;

namespace orvane {

// The pages of a machine on a kind of paper, ready to be painted. It can be painted in a thread.
class Printout {
  public:
    Printout(const FsmDocument& document, const print::CoverFacts& facts, const print::Parts& parts,
             const QPageLayout& paper, std::shared_ptr<const MachinePicture> picture);

    int Pages() const { return int(sheets_.size()); }
    const QPageLayout& Paper() const { return paper_; }
    // Page 0 is the first one. The painter's 0, 0 is the corner of what can be printed on, its length a twip.
    void PaintPage(QPainter& painter, int page) const;
    // All pages from `first` to `last`; false when the device takes no more, or when it was to stop.
    bool PaintOn(QPagedPaintDevice& device, int resolution, int first, int last,
                 const std::stop_token& stop = {}) const;
    // The bytes of a file; none when it was to stop or could not be made.
    QByteArray Pdf(const QString& title, const std::stop_token& stop = {}) const;

  private:
    const QPageLayout paper_;
    const PaperLetters letters_;
    const std::shared_ptr<const MachinePicture> picture_;
    const std::vector<print::Sheet> sheets_;
};

// The picture of the machine for this paper. It takes long for a large machine, and does not change with what
// else is printed.
std::shared_ptr<const MachinePicture> PictureFor(const FsmDocument& document, const QPageLayout& paper);

// Twips of paper, 1440 to an inch.
inline constexpr int kTwipsPerInch = 1440;

} // namespace orvane
