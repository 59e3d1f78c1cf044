// SPDX-License-Identifier: GPL-3.0-or-later
#include "codegen/CodeGenerator.h"
#include "support/Property.h"
#include "support/RandomDocument.h"

namespace orvane::test {
namespace {

const GenerationContext kContext{"C:\\work\\random.zfsm", "16/11/2026 01:02:03"};

// Without a name nothing is generated.
FsmDocument DocumentWithName() {
    FsmDocument document = *AnyDocument();
    document.General.FsmName += "P";
    return document;
}

TEST(ProgramProperties, TheSameDocumentGivesTheSameProgramAndReport) {
    ExpectProperty({.Cases = 1500, .LargestSize = 200}, [] {
        const FsmDocument document = DocumentWithName();
        const GeneratedProgram first = GenerateProgram(document, kContext);
        const FsmDocument copy = document;
        const GeneratedProgram second = GenerateProgram(copy, kContext);
        RC_ASSERT(first.Text == second.Text);
        RC_ASSERT(first.Findings.Findings == second.Findings.Findings);
        RC_ASSERT(ReportText(first.Findings) == ReportText(second.Findings));
        RC_ASSERT(copy == document);
    });
}

TEST(ProgramProperties, WhatIsNeitherGeneratedNorNamedInMessagesChangesNothing) {
    ExpectProperty({.Cases = 500, .LargestSize = 200}, [] {
        const FsmDocument document = DocumentWithName();
        FsmDocument other = document;
        for (const StateNumber state : StateNumbers()) {
            other.State(state).ExitCode = *AnyText();
            other.State(state).ColWidth = 100 + state.Number();
            other.State(state).LastTab = 3;
        }
        for (const RowNumber row : EventRows())
            other.Event(row).Tooltip = other.Event(row).Name = *AnyText();
        other.General.BuildFile = *AnyText();
        other.View.ShowElse = !other.View.ShowElse;
        other.View.Col0Width = 1;
        RC_ASSERT(GenerateProgram(other, kContext).Text == GenerateProgram(document, kContext).Text);
    });
}

} // namespace
} // namespace orvane::test
