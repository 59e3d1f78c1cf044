// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/DocumentSession.h"
#include "text/Vocabulary.h"

#include <QObject>

#include <functional>
#include <memory>

namespace orvane {

class frmBackTrack;
class frmBuilder;
class frmGenerator;
class GeneratorRun;

// The windows that stay open beside the table. Each is made when it is first wanted and kept, hidden when it
// is closed. None of them belongs to the main window's own windows, so that the table can be in front of
// them.
class SideWindows : public QObject {
    Q_OBJECT

  public:
    // Session and generator outlive this. `refreshGenerators` runs the generator.
    SideWindows(DocumentSession& session, GeneratorRun& generator, std::function<void()> refreshGenerators);
    ~SideWindows() override;

    void SetVocabulary(const Vocabulary& vocabulary);

    void ShowGenerator();
    void ShowBuilder();
    void BuildAndTest();
    void BackTrack(int state);

    void DocumentChanged();
    void DocumentReplaced();
    void DocumentRenamed();

    void HideAll();

  Q_SIGNALS:
    // A line of the report names this cell; row 0..54, state 1..100.
    void PlaceChosen(int state, int row);

  private:
    frmGenerator& Generator();
    frmBuilder& Builder();
    void ShowRun();
    QString FateOfProgram() const;

    DocumentSession& session_;
    GeneratorRun& generator_;
    std::function<void()> refreshGenerators_;
    Vocabulary vocabulary_;
    std::unique_ptr<frmGenerator> frmGenerator_;
    std::unique_ptr<frmBackTrack> frmBackTrack_;
    std::unique_ptr<frmBuilder> frmBuilder_;
};

} // namespace orvane
