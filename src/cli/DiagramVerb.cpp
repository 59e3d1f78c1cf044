// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/DiagramVerb.h"

#include "cli/DocumentPath.h"
#include "cli/ExportVerbs.h"
#include "cli/MachineFile.h"
#include "cli/MessageText.h"
#include "codegen/DesignChecks.h"
#include "diagram/Dot.h"
#include "diagram/Layout.h"
#include "diagram/LetterWidths.h"
#include "diagram/Svg.h"
#include "run/NearestName.h"
#include "text/AnsiText.h"
#include "text/Ascii.h"
#include "text/NumberText.h"

#include <algorithm>

namespace orvane::cli {

namespace {

// What a state may be called on the command line: its number, its name, or both.
bool IsCalled(const FsmDocument& document, StateNumber state, const std::string& word) {
    return word == NumberText(state.Number()) || word == ToUtf8(document.State(state).Name) ||
           word == ToUtf8(Trim(document.State(state).Name)) || word == ToUtf8(StateTitle(document, state));
}

class Drawing {
  public:
    Drawing(const Arguments& arguments, const TestFiles& files)
        : arguments_(arguments),
          asked_(arguments.Drawing),
          name_(arguments.Documents.front()),
          files_(files) {}

    Outcome Do() {
        const std::shared_ptr<const FsmDocument> machine = ReadMachine(files_, name_, outcome_);
        if (machine == nullptr)
            return std::move(outcome_);
        diagram::SceneOptions options;
        options.HideElse = asked_.NoElse;
        if (!asked_.Focus)
            KeepReadable(*machine, options);
        else if (!FindFocus(*machine, options))
            return std::move(outcome_);
        WriteOutput(arguments_, files_, Drawn(diagram::MakeScene(*machine, sizes_, options)), outcome_);
        return std::move(outcome_);
    }

  private:
    // By numbers alone, so that the same document gives the same picture on a slow machine, too.
    void KeepReadable(const FsmDocument& machine, diagram::SceneOptions& options) {
        const std::size_t edges = diagram::MergedEdges(machine);
        if (edges <= diagram::kMostMergedEdges)
            return;
        options.Focus = StateNumbers().First();
        outcome_.Errors +=
            ShownName(name_) + ": " + NumberText(std::int64_t(edges)) +
            " lines are too many for one picture; it shows state 1, what leads there and where "
            "it leads. --focus shows another state\n";
    }

    bool FindFocus(const FsmDocument& machine, diagram::SceneOptions& options) {
        std::vector<StateNumber> found;
        std::vector<std::string> names;
        for (const diagram::SceneState& state : diagram::MakeScene(machine, sizes_, {}).States) {
            names.push_back(ToUtf8(Trim(machine.State(state.Number).Name)));
            if (IsCalled(machine, state.Number, *asked_.Focus))
                found.push_back(state.Number);
        }
        const std::string shown = "--focus: " + ShownName(*asked_.Focus);
        if (found.empty())
            outcome_ = WrongUsage(shown + " is no state of the picture" +
                                  ShownName(run::DidYouMean(*asked_.Focus, names)));
        else if (found.size() > 1)
            outcome_ = WrongUsage(shown + " is the name of several states; give the number");
        else
            options.Focus = found.front();
        return found.size() == 1;
    }

    bool AsDot() const {
        if (!asked_.Format.empty() || !arguments_.Output)
            return asked_.Format == "dot";
        const std::string extension = AsciiLower(Utf8(PathOf(*arguments_.Output).extension()));
        return extension == ".dot" || extension == ".gv";
    }

    std::string Drawn(const diagram::Scene& scene) const {
        const bool isTopDown = asked_.Direction == "td";
        const auto direction = isTopDown ? diagram::Direction::TopDown : diagram::Direction::LeftToRight;
        if (AsDot())
            return diagram::DotOf(scene, direction);
        constexpr diagram::Rect paper{0, 0, 1200, 800};
        const diagram::Layout layout = asked_.Direction.empty()
                                           ? diagram::FittingLayout(scene, sizes_, paper)
                                           : diagram::ColdLayout(scene, sizes_, direction);
        return diagram::SvgOf(scene, layout, sizes_);
    }

    const Arguments& arguments_;
    const DiagramArguments& asked_;
    const std::string& name_;
    const TestFiles& files_;
    const diagram::LetterWidths sizes_;
    Outcome outcome_;
};

} // namespace

Outcome RunDiagram(const Arguments& arguments, const TestFiles& files) {
    return Drawing(arguments, files).Do();
}

} // namespace orvane::cli
