// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QLabel;

namespace orvane {

// The place of a label in a status bar. A label that stands in the bar itself has the whole window laid out
// anew with each of its texts; one in its place only when it wants to be as wide as it was not before, and
// never when the place takes what room there is (QSizePolicy::Ignored).
class StatusPlace final : public QWidget {
    Q_OBJECT

  public:
    // The label belongs to the place then.
    StatusPlace(QLabel& label, QWidget* parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    QLabel& label_;
    QSize told_; // what the bar was last laid out for
};

} // namespace orvane
