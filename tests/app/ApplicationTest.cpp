// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Application.h"

#include "core/BoundsError.h"
#include "core/FsmDocument.h"
#include "support/ui/DialogAnswer.h"

#include <gmock/gmock.h>

namespace orvane {
namespace {

using testing::HasSubstr;

TEST(Application, AFaultInAnEventHandlerIsToldAndTheProgramGoesOn) {
    DialogAnswer answers;
    answers.Press(QMessageBox::Ok).Press(QMessageBox::Ok);
    FsmDocument document;
    EXPECT_FALSE(Application::Guarded([&] { return document.State(101).Name.empty(); }));
    EXPECT_FALSE(Application::Guarded([]() -> bool { throw 1; }));
    ASSERT_EQ(answers.Seen().size(), 2u);
    EXPECT_THAT(answers.Seen()[0].Text, HasSubstr("101"));
    EXPECT_THAT(answers.Seen()[0].Text, HasSubstr("What you have drawn is still here"));
    EXPECT_THAT(answers.Seen()[1].Text, HasSubstr("an unknown fault"));
    EXPECT_TRUE(Application::Guarded([] { return true; }));
}

TEST(Application, AFaultWhileOneIsToldIsNotToldAgain) {
    DialogAnswer answers;
    answers.Do([](QWidget& box) {
        EXPECT_FALSE(Application::Guarded([]() -> bool { throw 1; }));
        box.close();
    });
    EXPECT_FALSE(Application::Guarded([]() -> bool { throw 1; }));
    EXPECT_EQ(answers.Seen().size(), 1u);
}

} // namespace
} // namespace orvane
