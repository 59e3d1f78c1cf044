// SPDX-License-Identifier: GPL-3.0-or-later
// How long the document at the limit takes from a click to the bytes of its PDF, part by part, in the least
// of some rounds.
#include "SampleDocuments.h"
#include "print/ui/Printout.h"
#include "ui/MedianTable.h"

#include <QApplication>

#include <algorithm>
#include <iomanip>
#include <iostream>

namespace orvane {
namespace {

constexpr int kRounds = 5;
constexpr double kAim = 1500; // milliseconds, all parts together

struct PrintTimes {
    double Picture = 1e9;
    double Pages = 1e9;
    double File = 1e9;
};

PrintTimes LeastTimes(const FsmDocument& document, const QPageLayout& paper, int& pages) {
    PrintTimes least;
    for (int round = 0; round < kRounds; ++round) {
        std::shared_ptr<const MachinePicture> picture;
        std::unique_ptr<Printout> printout;
        least.Picture = std::min(least.Picture, TimeOf([&] { picture = PictureFor(document, paper); }));
        least.Pages = std::min(least.Pages, TimeOf([&] {
                                   printout = std::make_unique<Printout>(document, print::CoverFacts(),
                                                                         print::Parts(), paper, picture);
                               }));
        least.File = std::min(least.File, TimeOf([&] { printout->Pdf(QStringLiteral("limit")); }));
        pages = printout->Pages();
    }
    return least;
}

} // namespace
} // namespace orvane

int main(int argc, char** argv) {
    using namespace orvane;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QPageLayout paper(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(15, 15, 15, 15),
                            QPageLayout::Millimeter);
    int pages = 0;
    const PrintTimes least = LeastTimes(DocumentAtTheLimit(), paper, pages);
    const double all = least.Picture + least.Pages + least.File;
    std::cout << std::fixed << std::setprecision(0) << "PDF of the document at the limit, " << pages
              << " pages: picture " << least.Picture << " ms, pages " << least.Pages << " ms, file "
              << least.File << " ms; all " << all << " ms, aim " << kAim << " ms"
              << (all > kAim ? "  <-- too long" : "") << "\n";
    return 0;
}
