#include "TestApp.h"

#include "TestResource.h"

#include <gtest/gtest.h>

TestApp theApp;

BEGIN_MESSAGE_MAP(TestApp, CWinApp)
    ON_COMMAND(IDC_APP_COMMAND, &TestApp::OnForeignCommand)
END_MESSAGE_MAP()

namespace {

class FrameworkStart : public testing::Environment {
    void SetUp() override {
        ASSERT_TRUE(AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), 0));
        theApp.EnableHtmlHelp();
    }
};

[[maybe_unused]] const testing::Environment* const start =
    testing::AddGlobalTestEnvironment(new FrameworkStart);

} // namespace
