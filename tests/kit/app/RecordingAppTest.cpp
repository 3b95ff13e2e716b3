// The host application of the tests: answers for a person, and remembers what it was asked.
#include "kit/app/RecordingApp.h"

#include "kit/FailuresOf.h"
#include "kit/RawDialog.h"
#include "kit/app/DialogClass.h"
#include "kit/kit.h"

#include <utility>

using kit::Dialog;
using kit::HelpRequest;
using kit::Script;

namespace {

class FirstWindow : public CWnd {};
class OtherWindow : public CWnd {};

} // namespace

TEST(RecordingApp, IsTheApplicationOfTheProgram) {
    EXPECT_EQ(AfxGetApp(), &kit::app);
    EXPECT_STREQ(AfxGetAppName(), L"Host application");
    EXPECT_EQ(kit::app.m_hInstance, GetModuleHandleW(nullptr));
}

TEST(RecordingApp, RemembersRequestsForHelp) {
    AfxGetApp()->HtmlHelp(19013, 15);
    AfxGetApp()->ShowHelp(0x20000 + 20093);
    const std::vector<HelpRequest> requests = kit::app.takeHelpRequests();
    ASSERT_EQ(requests.size(), 2U);
    EXPECT_EQ(requests[0], (HelpRequest{19013, 15}));
    EXPECT_EQ(requests[1].context, 0x20000U + 20093U);
    EXPECT_TRUE(kit::app.takeHelpRequests().empty()) << "they were taken";
}

TEST(RecordingApp, AnswersFilePromptsInOrderAndRemembersThem) {
    kit::app.answerFilePrompt(L"C:\\chosen.txt");
    kit::app.cancelFilePrompt();

    CString name = L"before";
    CDocTemplate* documentTemplate = nullptr;
    EXPECT_TRUE(
        kit::app.PideFichero(name, 61440, 0x1004, TRUE, &documentTemplate, 3, &documentTemplate));
    EXPECT_STREQ(name, L"C:\\chosen.txt");
    EXPECT_FALSE(kit::app.PideFichero(name, 61441, 0, FALSE, nullptr, 0, nullptr));
    EXPECT_STREQ(name, L"C:\\chosen.txt") << "a cancelled prompt leaves the name";

    const std::vector<kit::FilePrompt> prompts = kit::app.takeFilePrompts();
    ASSERT_EQ(prompts.size(), 2U);
    EXPECT_EQ(prompts[0].name, &name);
    EXPECT_EQ(prompts[0].nameBefore, L"before");
    EXPECT_EQ(prompts[0].title, 61440U);
    EXPECT_EQ(prompts[0].flags, 0x1004U);
    EXPECT_TRUE(prompts[0].open);
    EXPECT_EQ(prompts[0].documentTemplate, &documentTemplate);
    EXPECT_EQ(prompts[0].kind, 3);
    EXPECT_EQ(prompts[0].reserved, &documentTemplate);
    EXPECT_EQ(prompts[1].title, 61441U);
    EXPECT_FALSE(prompts[1].open);
}

TEST(RecordingApp, FailsOnAFilePromptWithoutAnswer) {
    BOOL confirmed = TRUE;
    const auto failures = failuresOf([&] {
        CString name;
        confirmed = kit::app.PideFichero(name, 61440, 0, TRUE, nullptr, 0, nullptr);
    });
    ASSERT_EQ(failures.size(), 1U);
    EXPECT_TRUE(contains(failures[0], "unexpected file prompt with the title 61440"));
    EXPECT_FALSE(confirmed);
}

TEST(RecordingApp, ForgetsAll) {
    kit::app.answerFilePrompt(L"never asked for");
    kit::app.HtmlHelp(1, 15);
    auto* const someTemplate = reinterpret_cast<CDocTemplate*>(&kit::app);
    kit::app.setDocumentTemplate(someTemplate);
    EXPECT_EQ(kit::app.PlantillaActual(), someTemplate);
    kit::app.forget();
    EXPECT_EQ(kit::app.answersLeft(), 0U);
    EXPECT_TRUE(kit::app.takeHelpRequests().empty());
    EXPECT_EQ(kit::app.PlantillaActual(), nullptr);
}

TEST(DialogClass, FindsTheDialogOfAClass) {
    FirstWindow window;
    const RawDialog dialog =
        RawDialog(L"Attached").button(IDCANCEL, L"Cancel").onInit([&](HWND handle) {
            window.Attach(handle);
        });
    Script script;
    script.onDialog(kit::of<FirstWindow>(), [&](Dialog& d) {
        EXPECT_EQ(&kit::object<FirstWindow>(d), &window);
        EXPECT_FALSE(kit::of<OtherWindow>()(d.handle()));
        window.Detach();
        d.press(IDCANCEL);
    });
    EXPECT_EQ(script.run([&] { return dialog.open(); }), IDCANCEL);
}
