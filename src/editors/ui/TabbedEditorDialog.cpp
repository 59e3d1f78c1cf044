// SPDX-License-Identifier: GPL-3.0-or-later
#include "editors/ui/TabbedEditorDialog.h"

#include "editors/ui/EditorStatusBar.h"
#include "kit/DocumentLineEdit.h"
#include "kit/LeftOut.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QTabWidget>
#include <QVBoxLayout>

namespace orvane {

TabbedEditorDialog::TabbedEditorDialog(const QString& name, int helpPage, QWidget* parent)
    : EditorDialog(name, helpPage, parent), StatusBar1(new EditorStatusBar(this)) {}

void TabbedEditorDialog::LayOutTabs(const QString& tabsName, const std::function<void()>& addPages) {
    const auto fill = [&](QVBoxLayout& content) {
        content.addLayout(BuildNameRow());
        SSTab1 = new QTabWidget(this);
        SSTab1->setObjectName(QStringLiteral("SSTab1"));
        SSTab1->setAccessibleName(tabsName);
        addPages();
        content.addWidget(SSTab1, 1);
        content.addLayout(BuildButtons());
    };
    LayOut(fill, StatusBar1);
}

QHBoxLayout* TabbedEditorDialog::BuildNameRow() {
    txtName = new DocumentLineEdit(this);
    txtName->setObjectName(QStringLiteral("txtName"));
    auto* lblName = new QLabel(QStringLiteral("Name"), this);
    lblName->setObjectName(QStringLiteral("lblName"));
    lblName->setBuddy(txtName);
    auto* row = new QHBoxLayout;
    row->addWidget(lblName);
    row->addWidget(txtName);
    return row;
}

QWidget* TabbedEditorDialog::AddPage(const QString& caption, QLabel* prompt, QWidget* field) {
    auto* page = new QWidget(this);
    auto* layout = new QVBoxLayout(page);
    layout->addWidget(prompt);
    layout->addWidget(field, 1);
    field->setAccessibleName(prompt->text());
    SSTab1->addTab(page, caption);
    return page;
}

void TabbedEditorDialog::ShowLeftOut(const QString& characters) {
    StatusBar1->showMessage(LeftOutMessage(characters));
}

} // namespace orvane
