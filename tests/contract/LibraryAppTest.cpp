// The library's module object: there is one, and it does nothing of its own.
#include "framework/modules/ModuleFiles.h"
#include "kit/app/RecordingApp.h"

#include <afxwin.h>

#include <gtest/gtest.h>

TEST(LibraryApp, HasNoMessageEntries) {
    const LoadedModule module(L"library_app.dll");
    ASSERT_TRUE(module.handle());
    const auto* const map = module.Call<const AFX_MSGMAP*>("LibraryAppMessageMap");
    ASSERT_NE(map, nullptr) << "the module's application object is none of the library's class";
    EXPECT_EQ(map->lpEntries[0].nSig, static_cast<UINT_PTR>(afx_internal::sigEnd));
}

TEST(LibraryApp, IsTheModulesAndNamedAfterItsFile) {
    const LoadedModule module(L"library_app.dll");
    ASSERT_TRUE(module.handle());
    const auto* const app = module.Call<CWinApp*>("LibraryApp");
    ASSERT_NE(app, nullptr);
    EXPECT_EQ(app->m_hInstance, module.handle());
    EXPECT_STREQ(app->m_pszAppName, L"library_app");
    EXPECT_EQ(app->GetRuntimeClass(), RUNTIME_CLASS(CWinApp));
    EXPECT_EQ(AfxGetApp(), &kit::app) << "it did not displace the host's";
}
