// SPDX-License-Identifier: GPL-3.0-or-later
#include "builder/BuilderScript.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(BuilderScript, TheStarterScriptListsSegmentsAndTheProgram) {
    EXPECT_EQ(StarterScript("C:\\work\\pump.zfsm"),
              ";#SILENT           ;Supresses messages from Zorlan/PC during normal build\r\n"
              "TESTSEG ; DISCARD  ;Test code. Delete 1st ; for a non-test build.\r\n"
              "INITSEG            ;Contains GoSub to initialisation subroutine\r\n"
              "LAUNCHSEG ONEONLY  ;Contains a RunTasksForever. Only one required in the whole project\r\n"
              "CODESEG            ;Contains your initialisation code plus Orvane's FSM code\r\n"
              "NVEM0DIR ONEONLY   ;Contains NVEM0 directive. Only one allowed per project\r\n"
              "NVEM0DATA          ;NVEM data tables\r\n"
              "\r\n"
              "#--- ;All project files listed below\r\n"
              "\r\n"
              ";Note that full paths are not essential. The easiest way is to keep the \r\n"
              ";  *.b1d file in the same folder as the project *zls and *.zfsm files.\r\n"
              "; The best time to use a full path is if you are re-using files.\r\n"
              "\r\n"
              "C:\\work\\pump.zls\r\n");
}

TEST(BuilderScript, TheStarterScriptOfADocumentWithoutAFileEndsInAnEmptyLine) {
    const std::string script = StarterScript("");
    EXPECT_TRUE(script.ends_with("re-using files.\r\n\r\n\r\n"));
}

TEST(BuilderScript, ADocumentWithoutAScriptBesideItHasNoProgramInTheStarterScript) {
    EXPECT_EQ(StarterScript("pump"), StarterScript(""));
}

} // namespace
} // namespace orvane
