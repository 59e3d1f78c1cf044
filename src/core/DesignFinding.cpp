// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/DesignFinding.h"

#include "text/NumberText.h"
#include "text/Ordinal.h"

#include <algorithm>
#include <array>

namespace orvane {

namespace {

struct LevelNames {
    FindingLevel Level;
    std::string_view One;
    std::string_view Many;
};

constexpr auto kLevels = std::to_array<LevelNames>({{FindingLevel::Error, "error", "errors"},
                                                    {FindingLevel::Warning, "warning", "warnings"},
                                                    {FindingLevel::Note, "note", "notes"},
                                                    {FindingLevel::Advice, "advice", "advice"}});

} // namespace

std::string_view LevelWord(FindingLevel level) { return kLevels.at(Ordinal(level)).One; }

std::string FindingCounts(std::span<const DesignFinding> findings) {
    std::string text;
    for (const LevelNames& level : kLevels) {
        const auto count = std::count_if(findings.begin(), findings.end(), [&](const DesignFinding& finding) {
            return finding.Level == level.Level;
        });
        if (count == 0)
            continue;
        text += (text.empty() ? "" : ", ") + NumberText(std::int64_t{count}) + " ";
        text += count == 1 ? level.One : level.Many;
    }
    return text.empty() ? "No findings" : text;
}

} // namespace orvane
