// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "kit/CodePane.h"
#include "review/LineDiff.h"

namespace orvane {

// One of the two panes that show code side by side: to be read, not edited. The lines that the other side
// does not have are coloured and have the sign of this side in front.
class SidePane : public CodePane {
    Q_OBJECT

  public:
    enum class Side { Old, New };

    SidePane(Side side, QWidget* parent);

    // The text, and what leads from the old one to the new one.
    void ShowSide(std::string_view text, const std::vector<review::LineChange>& changes);

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void ApplySignLook();
    void MarkLine(std::size_t line);

    Side side_;
};

} // namespace orvane
