// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

namespace orvane {

// One line of text that makes no window wider: what there is no room for is cut off with "…". The label's
// text is always the whole one, which screen readers tell and the tooltip shows.
class ElidedLabel : public QLabel {
    Q_OBJECT

  public:
    explicit ElidedLabel(QWidget* parent);

    // The tooltip shows it, too; who has a better one sets it afterwards.
    void ShowText(const QString& text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QString Line() const;
};

// A text of the document or of the system as a tooltip: what looks like markup in it is shown as it stands.
QString PlainToolTip(const QString& text);

} // namespace orvane
