// The application that the framework's tests are.
#pragma once

#include <afxwin.h>

#include <functional>
#include <vector>

class TestApp : public CWinApp {
public:
    TestApp() : CWinApp(L"Framework tests") {}

    /// Each help request: its context and command.
    struct Help {
        DWORD_PTR context;
        UINT command;
        bool operator==(const Help&) const = default;
    };
    std::vector<Help> helps;

    void HtmlHelp(DWORD_PTR dwData, UINT nCmd) override { helps.push_back({dwData, nCmd}); }

    /// Asked instead of the default for an exception that a handler lets out.
    std::function<LRESULT(CException*, const MSG*)> onException;

    LRESULT ProcessWndProcException(CException* e, const MSG* message) override {
        return onException ? onException(e, message) : CWinApp::ProcessWndProcException(e, message);
    }

    int commandsSeen = 0;
    void OnForeignCommand() { ++commandsSeen; }

    DECLARE_MESSAGE_MAP()
};

extern TestApp theApp;
