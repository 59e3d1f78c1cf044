// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/MachineFile.h"

#include "cli/MessageText.h"
#include "core/DocumentReader.h"
#include "run/Obstacles.h"
#include "text/AnsiText.h"

namespace orvane::cli {

std::shared_ptr<const FsmDocument> ReadMachine(const TestFiles& files, const std::string& name,
                                               Outcome& outcome) {
    const std::optional<std::string> bytes = files.BytesOf(name, outcome);
    if (!bytes)
        return nullptr;
    ReadResult read = ReadDocument(*bytes);
    for (const ReaderMessage& message : read.Messages)
        outcome.Errors += MessageLine(name, message);
    if (read.BrokeOff) {
        outcome.Raise(kFileError);
        return nullptr;
    }
    return std::make_shared<const FsmDocument>(std::move(read.Document));
}

bool CanBeRun(const FsmDocument& document, const std::string& name, Outcome& outcome) {
    const std::vector<std::string> obstacles = run::Obstacles(document);
    for (const std::string& obstacle : obstacles)
        outcome.Errors += ShownName(name) + ": " + ShownName(ToUtf8(obstacle)) + "\n";
    if (!obstacles.empty())
        outcome.Raise(kDesignError);
    return obstacles.empty();
}

} // namespace orvane::cli
