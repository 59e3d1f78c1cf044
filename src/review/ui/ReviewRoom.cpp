// SPDX-License-Identifier: GPL-3.0-or-later
#include "review/ui/ReviewRoom.h"

#include "review/TakeOver.h"
#include "review/ui/frmCompare.h"
#include "session/Commands.h"
#include "session/Session.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMainWindow>

#include <array>
#include <utility>

namespace orvane {

namespace {

// After these the document is another one, or looks another way.
bool ChangesTheDocument(ChangeKind kind) {
    switch (kind) {
    case ChangeKind::Edited:
    case ChangeKind::Undone:
    case ChangeKind::Redone:
    case ChangeKind::Typed:
    case ChangeKind::Viewed:
    case ChangeKind::RowsToggled:
    case ChangeKind::Multitasking:
        return true;
    default:
        return false;
    }
}

} // namespace

ReviewRoom::ReviewRoom(const RoomPlace& place)
    : session_(place.Open), main_(place.Window), words_(place.Words), reader_(nullptr) {
    connect(&reader_, &VersionReader::Got, this, &ReviewRoom::TakeRead);
    connect(&reader_, &VersionReader::Failed, this, &ReviewRoom::TakeFailure);
    connect(&worker_, &ComparisonWorker::Done, this, &ReviewRoom::TakeShown);
}

ReviewRoom::~ReviewRoom() = default;

std::span<const Command> ReviewRoom::Commands() const {
    static constexpr auto commands = std::to_array<Command>({Command::CompareWith});
    return commands;
}

ObserverRank ReviewRoom::Rank() const { return ObserverRank::Rooms; }

bool ReviewRoom::Listens() const { return frmCompare_ && frmCompare_->isVisible(); }

void ReviewRoom::Run(Command) { CompareVersions({}); }

void ReviewRoom::CompareVersions(const VersionsToCompare& versions) {
    MakeWindow();
    Begin(versions);
    frmCompare_->show();
    frmCompare_->raise();
    frmCompare_->activateWindow();
}

void ReviewRoom::Begin(const VersionsToCompare& versions) {
    here_ = versions.Here;
    isGiven_ = versions.Other.has_value();
    source_ = VersionSource::Disk;
    other_.reset();
    frmCompare_->ShowSource(source_);
    frmCompare_->Say({});
    if (isGiven_)
        TakeRead({*versions.Other, {}, {}});
    else
        ReadAgain();
}

void ReviewRoom::MakeWindow() {
    if (frmCompare_)
        return;
    frmCompare_ = std::make_unique<frmCompare>(words_);
    connect(frmCompare_.get(), &frmCompare::SourceChosen, this, &ReviewRoom::ChooseSource);
    connect(frmCompare_.get(), &frmCompare::ExchangeWanted, this, [this] {
        otherIsOlder_ = !otherIsOlder_;
        Compare();
    });
    connect(frmCompare_.get(), &frmCompare::ViewToggled, this, &ReviewRoom::Compare);
    connect(frmCompare_.get(), &frmCompare::TakeOverWanted, this, &ReviewRoom::TakeOver);
    connect(frmCompare_.get(), &frmCompare::IdentityChosen, this, &ReviewRoom::TakeWish);
    connect(frmCompare_.get(), &frmCompare::ChangeChosen, this, &ReviewRoom::ShowInTable);
    connect(frmCompare_.get(), &frmCompare::Entered, this, &ReviewRoom::ReadAgain);
}

void ReviewRoom::ChooseSource(VersionSource source) {
    if (source == VersionSource::File) {
        const QString chosen = QFileDialog::getOpenFileName(
            frmCompare_.get(), tr("Compare with"), QFileInfo(QString::fromStdString(session_.Path())).path(),
            tr("Orvane documents (*.zfsm)"));
        if (chosen.isEmpty())
            return frmCompare_->ShowSource(source_);
        file_ = chosen;
    }
    source_ = source;
    here_.reset();
    isGiven_ = false;
    other_.reset();
    ReadAgain();
}

// Also when the user comes back to the window: by then the file or the commit may be another one.
void ReviewRoom::ReadAgain() {
    if (isGiven_)
        return;
    const QString path = source_ == VersionSource::File ? file_ : QString::fromStdString(session_.Path());
    if (path.isEmpty())
        return TakeFailure(
            tr("The document has no file yet: there is nothing on disk to compare it with. Save "
               "it, or choose another file."));
    if (!other_)
        frmCompare_->ShowBusy();
    reader_.Read(source_, path);
}

void ReviewRoom::TakeRead(const ReadVersion& read) {
    const bool isAnother = !other_ || other_->Name != read.Version.Name;
    if (!isAnother && *other_->Document == *read.Version.Document)
        return;
    if (isAnother)
        otherIsOlder_ = IsOlder(read);
    known_ = {}; // the numbers of the other version may be others now
    other_ = read.Version;
    frmCompare_->Say(read.Notice);
    Compare();
}

// The file as this window knows it, and what was committed, came before what is in the window. What others
// have written came after it, and so did what was left unsaved.
bool ReviewRoom::IsOlder(const ReadVersion& read) const {
    if (isGiven_ || source_ == VersionSource::File)
        return false;
    return source_ == VersionSource::Head || !session_.Stamp() || session_.Stamp()->Sha256 == read.Digest;
}

void ReviewRoom::TakeFailure(const QString& why) {
    other_.reset();
    shown_.reset();
    worker_.Drop();
    frmCompare_->ShowNothing(why);
}

NamedVersion ReviewRoom::Here() const {
    if (here_)
        return *here_;
    return {tr("this window"), std::make_shared<const FsmDocument>(session_.Document())};
}

void ReviewRoom::Compare() {
    if (!other_)
        return;
    const NamedVersion here = Here();
    const QString takeOver = here_ ? QString() : otherIsOlder_ ? tr("&Take back") : tr("&Take over");
    frmCompare_->ShowHeading(
        {otherIsOlder_ ? other_->Name : here.Name, otherIsOlder_ ? here.Name : other_->Name, takeOver});
    frmCompare_->ShowBusy();
    shown_.reset();
    const auto view = frmCompare_->ComparesView() ? review::ComparedVersions::View::Compared
                                                  : review::ComparedVersions::View::LeftOut;
    worker_.Begin({here.Document, other_->Document, otherIsOlder_, known_, view});
}

void ReviewRoom::TakeShown(const Comparison& comparison) {
    shown_ = comparison.Versions;
    known_ = comparison.Known;
    frmCompare_->ShowVersions(shown_);
}

void ReviewRoom::TakeWish(const review::Wishes& wish) {
    if (!shown_)
        return;
    known_.Wishes = review::Added(known_.Wishes, otherIsOlder_ ? wish.Mirrored() : wish);
    known_.Here = std::make_shared<const FsmDocument>(otherIsOlder_ ? shown_->New() : shown_->Old());
    Compare();
}

// What is taken over comes from the list that leads away from the open document.
void ReviewRoom::TakeOver(std::size_t change) {
    if (!shown_ || here_)
        return;
    const review::ChangeList list = otherIsOlder_ ? shown_->List().Mirrored() : shown_->List();
    const EditStep step{EntryOf(Command::CompareWith).Step, {Touched::Extent::Everything, kNoState}};
    const std::optional<UserMessage> refusal =
        session_.Edit(step, [&](Editable editable) -> std::optional<UserMessage> {
            if (std::optional<std::string> why =
                    review::TakeOver(list.Changes[change], list, editable.Document))
                return UserMessage{*why + "."};
            return std::nullopt;
        });
    frmCompare_->Say(refusal ? QString::fromStdString(refusal->Text) : QString());
}

void ReviewRoom::ShowInTable(std::size_t change) {
    if (!shown_ || here_)
        return;
    const review::Change& chosen = shown_->List().Changes[change];
    Q_EMIT PlaceChosen(otherIsOlder_ ? chosen.New : chosen.Old);
}

void ReviewRoom::Told(const Change& change) {
    if (change.Kind == ChangeKind::Replaced) {
        Begin({});
    } else if (change.Kind == ChangeKind::Saved) {
        ReadAgain();
    } else if (ChangesTheDocument(change.Kind)) {
        Compare();
    }
}

void ReviewRoom::Close() {
    if (frmCompare_)
        frmCompare_->hide();
}

} // namespace orvane
