// SPDX-License-Identifier: GPL-3.0-or-later
// Sessions of random keys in the table beside a model that knows nothing of the program: arrays of targets
// and actions, a frame, a chosen rectangle, a clipboard, a list of snapshots.
#include "core/DocumentWriter.h"
#include "session/Session.h"
#include "support/ui/Controls.h"
#include "support/ui/TableFixture.h"

#include <QApplication>

#include <algorithm>
#include <map>
#include <random>

namespace orvane {
namespace {

constexpr int kNamed = 6;   // states 1.. that have names
constexpr int kColumns = 8; // those that the frame goes to
constexpr int kRows[] = {4, 6, 7, 8, 9, 10};
constexpr int kUnnamedRow = 8;

struct Content {
    int Target = 0;
    std::string Action;

    bool operator==(const Content&) const = default;
};
using KeyPlace = std::pair<int, int>; // row, state
using Table = std::map<KeyPlace, Content>;

// Rows and states, each in order.
struct Rectangle {
    std::vector<int> Rows;
    std::vector<int> States;
};

std::string NameOf(int state) { return state <= kNamed ? std::string(1, char('a' + state - 1)) + "x" : ""; }

FsmDocument StartDocument() {
    FsmDocument document = PumpDocument();
    document.View.RowVisible.TimeTarget = 300;
    document.View.ShowTimeTarget = true;
    for (const StateNumber state : StateNumbers()) {
        document.State(state).ColWidth = 1800; // nothing is cut off
        document.State(state).Targets = {};
        document.State(state).Name = NameOf(state.Number());
    }
    for (const int row : {6, 7, 9, 10}) {
        document.Event(row).Name = "E" + std::to_string(row);
        document.Event(row).Code = ";e";
    }
    document.State(2).Targets[7] = 1;
    document.State(2).Actions[7] = ";stop";
    document.State(3).Targets[4] = 4;
    document.State(3).Actions[4] = ";late";
    document.State(1).Targets[9] = 12; // a state without a name
    return document;
}

class Model {
  public:
    explicit Model(const FsmDocument& document) {
        for (const int row : kRows) {
            for (int state = 1; state <= kStateCount; ++state) {
                const StateRecord& record = document.State(state);
                if (record.Targets[row] != kNoState || !record.Actions[row].empty())
                    now_[{row, state}] = {record.Targets[row].Number(), record.Actions[row]};
            }
        }
        steps_ = {now_};
    }

    std::string Text(KeyPlace place) const {
        const Content content = At(place);
        std::string text;
        if (content.Target != 0)
            text = std::to_string(content.Target) + ":" + NameOf(content.Target);
        return text + (content.Action.empty() ? "" : "*");
    }

    void Type(int target) {
        if (Frame.first == kUnnamedRow)
            return;
        Content content = At(Frame);
        content.Target = target;
        Put(Frame, target == 0 ? Content{} : content);
        Commit();
        auto next = std::find(std::begin(kRows), std::end(kRows), Frame.first) + 1;
        if (next != std::end(kRows) && *next == kUnnamedRow)
            ++next;
        if (next != std::end(kRows))
            MoveTo({*next, Frame.second});
    }
    void Clear() {
        for (const KeyPlace& place : Places())
            Put(place, {});
        Commit();
    }
    void Copy() {
        clip_.clear();
        const Rectangle chosen = Chosen();
        for (const int row : chosen.Rows) {
            clip_.emplace_back();
            for (const int state : chosen.States)
                clip_.back().push_back(At({row, state}));
        }
    }
    bool HasClip() const { return !clip_.empty(); }
    void Paste() {
        if (clip_.size() == 1 && clip_[0].size() == 1) {
            for (const KeyPlace& place : Places())
                PutNamed(place, clip_[0][0]);
        } else {
            const Rectangle chosen = Chosen();
            const auto first = std::find(std::begin(kRows), std::end(kRows), chosen.Rows.front());
            for (std::size_t row = 0; row < clip_.size() && first + long(row) < std::end(kRows); ++row) {
                for (std::size_t column = 0; column < clip_[row].size(); ++column)
                    PutNamed({first[long(row)], chosen.States.front() + int(column)}, clip_[row][column]);
            }
        }
        Commit();
    }
    bool Undo() { return GoTo(-1); }
    bool Redo() { return GoTo(1); }
    std::size_t Steps() const { return steps_.size() - 1; }

    void MoveTo(KeyPlace place) {
        if (place == Frame)
            return;
        Frame = anchor_ = place;
        chosen_.reset();
    }
    void ExtendTo(KeyPlace place) {
        Frame = place;
        const auto [top, bottom] = std::minmax(anchor_.first, place.first);
        const auto [left, right] = std::minmax(anchor_.second, place.second);
        chosen_.emplace();
        for (const int row : kRows) {
            if (row >= top && row <= bottom)
                chosen_->Rows.push_back(row);
        }
        for (int state = left; state <= right; ++state)
            chosen_->States.push_back(state);
    }
    void ChooseAll() { chosen_ = {{4, 6, 7, 9, 10}, {1, 2, 3, 4, 5, 6}}; }
    void ForgetChoice() {
        if (chosen_)
            anchor_ = Frame;
        chosen_.reset();
    }

    KeyPlace Frame{6, 1};

  private:
    Content At(KeyPlace place) const { return now_.contains(place) ? now_.at(place) : Content{}; }
    void Put(KeyPlace place, const Content& content) {
        if (content == Content{})
            now_.erase(place);
        else
            now_[place] = content;
    }
    void PutNamed(KeyPlace place, const Content& content) {
        if (place.first != kUnnamedRow && place.second <= kStateCount)
            Put(place, content);
    }
    Rectangle Chosen() const { return chosen_.value_or(Rectangle{{Frame.first}, {Frame.second}}); }
    std::vector<KeyPlace> Places() const {
        std::vector<KeyPlace> places;
        const Rectangle chosen = Chosen();
        for (const int row : chosen.Rows) {
            for (const int state : chosen.States)
                places.emplace_back(row, state);
        }
        return places;
    }
    void Commit() {
        if (now_ == steps_[at_])
            return;
        steps_.resize(at_ + 1);
        steps_.push_back(now_);
        ++at_;
    }
    bool GoTo(int by) {
        if (by < 0 ? at_ == 0 : at_ + 1 == steps_.size())
            return false;
        at_ = at_ + std::size_t(by);
        now_ = steps_[at_];
        return true;
    }

    Table now_;
    std::vector<Table> steps_;
    std::size_t at_ = 0;
    std::vector<std::vector<Content>> clip_;
    KeyPlace anchor_{6, 1};
    std::optional<Rectangle> chosen_;
};

class RandomKeys : public TableFixture, public testing::WithParamInterface<unsigned> {
  protected:
    int Random(int least, int most) { return std::uniform_int_distribution(least, most)(random_); }
    void Key(int key, Qt::KeyboardModifiers modifiers = {}) {
        QWidget* focus = Window().focusWidget();
        QTest::keyClick(focus != nullptr ? focus : Grid(), Qt::Key(key), modifiers);
        said_ += QKeySequence(key | int(modifiers)).toString().toStdString() + " ";
    }
    void Keys(const std::string& text) {
        for (const char letter : text)
            Key(QChar::fromLatin1(letter).toUpper().unicode());
    }
    KeyPlace Frame() {
        const QModelIndex cell = Grid()->currentIndex();
        return {cell.row(), cell.column()};
    }
    void Arrow(Model& model);
    void TypeTarget(Model& model);
    void Go(Model& model);
    void Step(Model& model);
    void OneCommand(Model& model);
    void ExpectSame(const Model& model);

    std::mt19937 random_{GetParam()};
    std::string said_;
};

void RandomKeys::Arrow(Model& model) {
    const bool extends = Random(0, 2) == 0;
    const auto row = std::find(std::begin(kRows), std::end(kRows), model.Frame.first);
    std::map<int, KeyPlace> ways;
    if (row != std::begin(kRows))
        ways[Qt::Key_Up] = {row[-1], model.Frame.second};
    if (row + 1 != std::end(kRows))
        ways[Qt::Key_Down] = {row[1], model.Frame.second};
    if (model.Frame.second > 1)
        ways[Qt::Key_Left] = {model.Frame.first, model.Frame.second - 1};
    if (model.Frame.second < kColumns)
        ways[Qt::Key_Right] = {model.Frame.first, model.Frame.second + 1};
    const auto way = std::next(ways.begin(), Random(0, int(ways.size()) - 1));
    Key(way->first, extends ? Qt::ShiftModifier : Qt::NoModifier);
    if (extends)
        model.ExtendTo(way->second);
    else
        model.MoveTo(way->second);
}

// By number, by F2 and number, or by a letter and the list that it opens.
void RandomKeys::TypeTarget(Model& model) {
    int target = Random(0, 14);
    switch (Random(0, 2)) {
    case 0:
        Keys(std::to_string(target));
        break;
    case 1:
        if (model.Frame.first == kUnnamedRow)
            return;
        Key(Qt::Key_F2);
        Keys(std::to_string(target));
        break;
    default:
        target = Random(1, kNamed);
        Keys(NameOf(target));
    }
    if (model.Frame.first == kUnnamedRow)
        return; // nothing has come up
    Key(Qt::Key_Return);
    model.Type(target);
}

void RandomKeys::Go(Model& model) {
    const std::pair<int, Qt::KeyboardModifiers> ways[] = {
        {Qt::Key_Home, Qt::NoModifier}, {Qt::Key_Home, Qt::ControlModifier}, {Qt::Key_Tab, Qt::NoModifier}};
    const auto& [key, modifiers] = ways[Random(0, 2)];
    if (key == Qt::Key_Tab && model.Frame.second == kColumns)
        return;
    const int column = model.Frame.second;
    Key(key, modifiers);
    model.MoveTo(Frame());
    EXPECT_TRUE(key != Qt::Key_Tab || Frame().second == column + 1);
}

// Where the step is seen is not the model's business.
void RandomKeys::Step(Model& model) {
    const bool undoes = Random(0, 2) != 0;
    const bool isPossible = undoes ? model.Undo() : model.Redo();
    Key(undoes ? Qt::Key_Z : Qt::Key_Y, Qt::ControlModifier);
    if (!isPossible)
        return;
    model.MoveTo(Frame());
    if (model.Frame.second > kColumns || model.Frame.first < 4) {
        Key(Qt::Key_Home, Qt::ControlModifier);
        model.MoveTo(Frame());
    }
}

void RandomKeys::OneCommand(Model& model) {
    const int kind = Random(0, 99);
    if (kind < 52)
        return Arrow(model);
    if (kind < 62)
        return TypeTarget(model);
    if (kind < 70)
        return Go(model);
    if (kind < 78)
        return Step(model);
    if (kind < 81) {
        Key(Qt::Key_A, Qt::ControlModifier);
        return model.ChooseAll();
    }
    if (kind < 84) {
        Key(Qt::Key_Escape);
        return model.ForgetChoice();
    }
    if (kind < 87) {
        Key(Qt::Key_Delete);
        return model.Clear();
    }
    const bool cuts = kind < 89;
    if (kind < 94) {
        Key(cuts ? Qt::Key_X : Qt::Key_C, Qt::ControlModifier);
        model.Copy();
        return cuts ? model.Clear() : void();
    }
    if (!model.HasClip())
        return; // some other program's
    Key(Qt::Key_V, Qt::ControlModifier);
    model.Paste();
}

void RandomKeys::ExpectSame(const Model& model) {
    ASSERT_EQ(Frame(), model.Frame) << said_;
    for (const int row : kRows) {
        for (int state = 1; state <= 2 * kColumns; ++state)
            ASSERT_EQ(Text(row, state), model.Text({row, state})) << row << "," << state << " " << said_;
    }
}

TEST_P(RandomKeys, TheTableIsWhatTheModelIsAfterEachAndUndoneToTheStartTheFileIsTheSame) {
    const FsmDocument start = StartDocument();
    StartOn(start);
    Window().activateWindow();
    Grid()->setFocus();
    Grid()->setCurrentIndex(Grid()->model()->index(6, 1));
    Model model(start);
    for (int command = 0; command < 500; ++command) {
        OneCommand(model);
        ASSERT_NO_FATAL_FAILURE(ExpectSame(model)) << "command " << command;
    }
    ASSERT_LE(model.Steps(), 99u); // what the history holds
    EXPECT_GT(model.Steps(), 10u);
    const FsmDocument end = Window().Place().Open.Document();
    int steps = 0;
    for (; model.Undo(); ++steps)
        Trigger("mnuUndo");
    EXPECT_FALSE(Item("mnuUndo")->isEnabled());
    EXPECT_EQ(WriteDocument(Window().Place().Open.Document()), WriteDocument(start));
    for (; steps > 0; --steps)
        Trigger("mnuRedo");
    EXPECT_EQ(WriteDocument(Window().Place().Open.Document()), WriteDocument(end));
}

INSTANTIATE_TEST_SUITE_P(Sessions, RandomKeys, testing::Values(1u, 2u, 3u, 4u));

} // namespace
} // namespace orvane
