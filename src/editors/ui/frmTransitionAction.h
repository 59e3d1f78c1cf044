// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editors/ui/EditorDialog.h"

#include <string>
#include <string_view>

class QLabel;

namespace orvane {

// Edits the action of one transition: the caller sets the code, executes, and takes the code as the new one.
// After Cancel that is the code the dialog came up with.
class frmTransitionAction : public EditorDialog {
    Q_OBJECT

  public:
    explicit frmTransitionAction(QWidget* parent = nullptr);

    void SetCode(std::string_view ansi);
    std::string Code() const;
    void Execute();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void Activate() override;
    void Cancel() override;
    void ShowLeftOut(const QString& characters) override;

  private:
    DocumentTextEdit* txtCode;
    QLabel* lblLeftOut; // stands in for the status bar that this dialog has not got
    std::string textOnEntry_;
};

} // namespace orvane
