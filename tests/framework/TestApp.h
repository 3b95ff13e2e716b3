// The application that the framework's tests are.
#pragma once

#include <afxwin.h>

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

    int commandsSeen = 0;
    void OnForeignCommand() { ++commandsSeen; }

    DECLARE_MESSAGE_MAP()
};

extern TestApp theApp;
