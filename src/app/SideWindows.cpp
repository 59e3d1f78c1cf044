// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/SideWindows.h"

#include "builder/ui/frmBuilder.h"
#include "codegen/ui/GeneratorRun.h"
#include "codegen/ui/frmGenerator.h"
#include "table/ui/frmBackTrack.h"

#include <QDir>

#include <array>

namespace orvane {

SideWindows::SideWindows(DocumentSession& session, GeneratorRun& generator,
                         std::function<void()> refreshGenerators)
    : session_(session), generator_(generator), refreshGenerators_(std::move(refreshGenerators)) {
    connect(&generator_, &GeneratorRun::Finished, this, &SideWindows::ShowRun);
}

SideWindows::~SideWindows() = default;

void SideWindows::SetVocabulary(const Vocabulary& vocabulary) {
    vocabulary_ = vocabulary;
    if (frmGenerator_)
        frmGenerator_->SetVocabulary(vocabulary_);
}

void SideWindows::ShowGenerator() { Generator().Present(); }

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
    const std::array<QWidget*, 3> windows = {frmBackTrack_.get(), frmBuilder_.get(), frmGenerator_.get()};
    for (QWidget* window : windows) {
        if (window != nullptr)
            window->hide();
    }
}

void SideWindows::ShowRun() {
    if (frmGenerator_)
        frmGenerator_->TakeRun(generator_.Latest(), FateOfProgram());
}

QString SideWindows::FateOfProgram() const {
    if (generator_.Latest().Findings.HasErrors())
        return tr("Not written: the design has errors");
    if (session_.CurrentFileName.isEmpty())
        return tr("Not written: the document has no file yet");
    const QString path = QString::fromStdString(ProgramFilePath(session_.CurrentFileName.toStdString()));
    return generator_.GeneratedOk() ? tr("Written to %1").arg(QDir::toNativeSeparators(path))
                                    : tr("Not written");
}

frmGenerator& SideWindows::Generator() {
    if (!frmGenerator_) {
        frmGenerator_ = std::make_unique<frmGenerator>();
        frmGenerator_->SetVocabulary(vocabulary_);
        connect(frmGenerator_.get(), &frmGenerator::PlaceChosen, this, &SideWindows::PlaceChosen);
        ShowRun();
    }
    return *frmGenerator_;
}

frmBuilder& SideWindows::Builder() {
    if (!frmBuilder_) {
        frmBuilder_ = std::make_unique<frmBuilder>(session_.Document.General.BuildFile);
        frmBuilder_->SetGenerator([this] {
            refreshGenerators_();
            return generator_.GeneratedOk();
        });
        frmBuilder_->StartDocument(session_.CurrentFileName);
    }
    return *frmBuilder_;
}

} // namespace orvane
