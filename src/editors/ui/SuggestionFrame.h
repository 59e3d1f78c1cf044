// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGroupBox>

#include <string_view>

class QLabel;
class QPushButton;

namespace orvane {

// Code that fits an empty pane, with a button to take it.
class SuggestionFrame : public QGroupBox {
    Q_OBJECT

  public:
    struct Names {
        const char* Frame;
        const char* Label;
        const char* Button;
    };

    SuggestionFrame(const Names& names, QWidget* parent);

    // Shows the suggestion, or hides the frame when there is no place for one.
    void Offer(bool wanted, std::string_view suggestion);

  Q_SIGNALS:
    void Accepted();

  private:
    QLabel* suggestion_;
};

} // namespace orvane
