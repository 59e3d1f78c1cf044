// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/SideWindows.h"

#include "aids/ui/OpenInDesktop.h"
#include "build/ui/frmBuilder.h"
#include "table/ui/frmBackTrack.h"

namespace orvane {

SideWindows::SideWindows(DocumentSession& session, const std::function<bool()>& generator)
    : session_(session), generator_(generator) {}

SideWindows::~SideWindows() = default;

void SideWindows::ShowBuilder() {
    Builder().show();
    Builder().raise();
    Builder().activateWindow();
}

void SideWindows::BuildAndTest() { Builder().GoGoGo(); }

void SideWindows::BackTrack(int state) {
    if (!frmBackTrack_) {
        frmBackTrack_ = std::make_unique<frmBackTrack>();
        connect(frmBackTrack_.get(), &frmBackTrack::StateChosen, this, &SideWindows::BackTrack);
    }
    frmBackTrack_->BackTrack(session_.Document, state);
}

void SideWindows::DocumentChanged() {
    if (frmBackTrack_)
        frmBackTrack_->RefreshBackTrack(session_.Document);
}

void SideWindows::DocumentReplaced() {
    DocumentChanged();
    if (frmBuilder_)
        frmBuilder_->StartDocument(session_.CurrentFileName);
}

void SideWindows::DocumentRenamed() {
    if (frmBuilder_)
        frmBuilder_->RenameDocument(session_.CurrentFileName);
}

void SideWindows::HideAll() {
    for (QWidget* window :
         {static_cast<QWidget*>(frmBackTrack_.get()), static_cast<QWidget*>(frmBuilder_.get())}) {
        if (window != nullptr)
            window->hide();
    }
}

frmBuilder& SideWindows::Builder() {
    if (!frmBuilder_) {
        frmBuilder_ = std::make_unique<frmBuilder>(session_.Document.General.BuildFile);
        frmBuilder_->SetOpener(&OpenInDesktop);
        frmBuilder_->SetGenerator(generator_);
        frmBuilder_->StartDocument(session_.CurrentFileName);
    }
    return *frmBuilder_;
}

} // namespace orvane
