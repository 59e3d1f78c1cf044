// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diagram/Layout.h"
#include "kit/PictureFonts.h"

#include <QSize>

class QPainter;

namespace orvane {

// The picture of a machine as it is put on paper: light, with all its texts, arranged for a sheet.
class MachinePicture {
  public:
    // Arranged so that it is shown as large as can be where there is room of this shape. A machine with more
    // lines than one picture can show has the neighbourhood of its first state.
    MachinePicture(const FsmDocument& document, const QSize& room);

    bool IsEmpty() const { return scene_.States.empty(); }
    bool IsWhole() const { return isWhole_; }
    // In the lengths that it is painted in, at 96 to an inch where nothing makes it smaller.
    QSize Size() const { return {layout_.Bounds.Width, layout_.Bounds.Height}; }
    // From the painter's 0, 0 on; its transformation makes it larger or smaller.
    void Paint(QPainter& painter) const;

  private:
    PictureFonts fonts_;
    bool isWhole_;
    diagram::Scene scene_;
    diagram::Layout layout_;
};

} // namespace orvane
