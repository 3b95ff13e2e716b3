#include "kit/app/RecordingApp.h"

#include "kit/kit.h"

#include <utility>

namespace kit {
namespace {

/// Starts the framework before the first test, and clears the records around each.
class Start : public testing::Environment {
    void SetUp() override {
        ASSERT_TRUE(AfxWinInit(GetModuleHandleW(nullptr), nullptr, GetCommandLineW(), SW_HIDE));
        setMessageFilter(
            [](MSG& message) { return AfxGetThread()->PreTranslateMessage(&message) != FALSE; });
        app.forget();
        testing::UnitTest::GetInstance()->listeners().Append(new Listener);
    }

    void TearDown() override {
        setMessageFilter(nullptr);
        AfxWinTerm();
    }

    class Listener : public testing::EmptyTestEventListener {
        void OnTestStart(const testing::TestInfo&) override { app.forget(); }
        void OnTestEnd(const testing::TestInfo&) override {
            EXPECT_EQ(app.answersLeft(), 0U) << "answers to file prompts that never came";
        }
    };
};

[[maybe_unused]] const testing::Environment* const start =
    testing::AddGlobalTestEnvironment(new Start);

} // namespace

RecordingApp app;

RecordingApp::RecordingApp() : CAplicacion(L"Host application") {}

void RecordingApp::answerFilePrompt(Text names) {
    answers_.emplace_back(std::move(names));
}

void RecordingApp::cancelFilePrompt() {
    answers_.emplace_back();
}

std::vector<HelpRequest> RecordingApp::takeHelpRequests() {
    return std::exchange(helpRequests_, {});
}

std::vector<FilePrompt> RecordingApp::takeFilePrompts() {
    return std::exchange(filePrompts_, {});
}

void RecordingApp::forget() {
    answers_.clear();
    filePrompts_.clear();
    helpRequests_.clear();
    documentTemplate_ = nullptr;
    SetHelpMode(afxHTMLHelp);
}

void RecordingApp::HtmlHelp(DWORD_PTR context, UINT command) {
    helpRequests_.push_back({context, command});
}

BOOL RecordingApp::PideFichero(CString& nombre, UINT titulo, DWORD opciones, BOOL abrir,
                               CDocTemplate** plantilla, int clase, void* reservado) {
    filePrompts_.push_back({.name = &nombre,
                            .nameBefore = nombre.GetString(),
                            .title = titulo,
                            .flags = opciones,
                            .open = abrir,
                            .documentTemplate = plantilla,
                            .kind = clase,
                            .reserved = reservado,
                            .active = ::GetActiveWindow()});
    if (answers_.empty()) {
        fail("An unexpected file prompt with the title " + std::to_string(titulo));
        return FALSE;
    }
    const std::optional<std::wstring> answer = std::move(answers_.front());
    answers_.pop_front();
    if (answer)
        nombre = answer->c_str();
    return answer.has_value();
}

} // namespace kit
