// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <memory>

namespace orvane {

class Printout;

// Shows one page as it would come out, as large as there is room for.
class PagePane : public QWidget {
    Q_OBJECT

  public:
    explicit PagePane(QWidget* parent);

    void Show(std::shared_ptr<const Printout> printout, int page);
    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    std::shared_ptr<const Printout> printout_; // none while there is nothing to show
    int page_ = 0;
};

} // namespace orvane
