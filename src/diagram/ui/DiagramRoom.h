// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "diagram/LivePicture.h"
#include "kit/Background.h"
#include "kit/PaneRoom.h"
#include "kit/PictureFonts.h"

#include <QTimer>

#include <optional>
#include <vector>

namespace orvane {

class dckDiagram;

// The picture of the machine beside the table. It follows every edit at once; what would be a better picture
// is looked for in a thread while the user pauses. Hidden it costs nothing, and is drawn anew when it is
// shown.
class DiagramRoom : public PaneRoom {
    Q_OBJECT

  public:
    explicit DiagramRoom(const RoomPlace& place);
    ~DiagramRoom() override;

    std::span<const Command> Commands() const override;
    void Run(Command command) override;
    ObserverRank Rank() const override;
    void Told(const Change& change) override;

  protected:
    Pane* MakePane() override;
    int FirstSize() const override;
    void Shown() override;
    void Hiding() override;

  private:
    enum class Act { Choose, Open, Jump };

    diagram::PictureWish Wish() const;
    void DrawAnew();
    void Follow();
    void ShowPicture();
    void ShowMarks();
    void LookForBetter();
    void BeginJob();
    void Take(diagram::Layout cold);
    void GiveUp();
    void Tidy();
    void Turn();
    void Save();
    void Do(Act act, const std::vector<Cell>& cells);
    void DoWith(Act act, Cell cell);

    Session& session_;
    QMainWindow& window_;
    std::optional<PictureFonts> fonts_;           // none before the pane is wanted
    std::optional<diagram::LivePicture> picture_; // the same
    dckDiagram* pane_ = nullptr;
    QTimer tmrPause_;                     // after an edit
    QTimer tmrLimit_;                     // of a layout that is awaited
    std::optional<diagram::ColdJob> job_; // that a thread works on
    Background<diagram::Layout> work_{*this};
};

} // namespace orvane
