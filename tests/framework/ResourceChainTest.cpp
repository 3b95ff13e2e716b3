// Where resources come from: the current module's own, then the modules that have put themselves
// into the chain, the newest first, then the language modules, the system's modules, and last the
// framework.
#include "TestApp.h"
#include "afxres.h"
#include "modules/ModuleFiles.h"
#include "modules/ModuleResource.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

HINSTANCE Found(UINT id) {
    return AfxFindResourceHandle(MAKEINTRESOURCE(id), RT_RCDATA);
}

std::wstring Text(UINT id) {
    CString text;
    text.LoadString(id);
    return text.GetString();
}

HINSTANCE FrameworkModule() {
    return ::GetModuleHandle(L"CuadrosAfx.dll");
}

/// A module that is in the chain without being loaded as a program.
class ChainEntry {
public:
    ChainEntry(const std::wstring& file, bool system)
        : m_module(::LoadLibraryEx(file.c_str(), nullptr, LOAD_LIBRARY_AS_IMAGE_RESOURCE)) {
        AFX_EXTENSION_MODULE module = {TRUE, m_module, m_module, nullptr};
        m_entry = std::make_unique<CDynLinkLibrary>(module, system);
    }
    ~ChainEntry() {
        m_entry.reset();
        ::FreeLibrary(m_module);
    }
    ChainEntry(const ChainEntry&) = delete;
    ChainEntry& operator=(const ChainEntry&) = delete;
    HINSTANCE handle() const { return m_module; }

private:
    HINSTANCE m_module;
    std::unique_ptr<CDynLinkLibrary> m_entry;
};

} // namespace

TEST(ResourceChain, ModuleIsInItFromLoadToUnload) {
    EXPECT_EQ(Found(ID_PROBE), nullptr);
    EXPECT_EQ(Text(IDS_OF_PROBE), L"");
    {
        const LoadedModule probe(L"probe.dll");
        EXPECT_EQ(Found(ID_PROBE), probe.handle());
        EXPECT_EQ(Text(IDS_OF_PROBE), L"Of the probe");
    }
    EXPECT_EQ(Found(ID_PROBE), nullptr);
    EXPECT_EQ(Text(IDS_OF_PROBE), L"");
}

TEST(ResourceChain, IsTheSameUnderEveryState) {
    const LoadedModule probe(L"probe.dll");
    AFX_MODULE_STATE other(TRUE, &AfxWndProc);
    AFX_MANAGE_STATE(&other);
    EXPECT_EQ(Found(ID_PROBE), probe.handle());
}

TEST(ResourceChain, CurrentModuleComesFirst) {
    const LoadedModule probe(L"probe.dll");
    const LoadedModule titled(L"titled.dll");
    EXPECT_EQ(Found(ID_SHARED), ::GetModuleHandle(nullptr));
    {
        AFX_MANAGE_STATE(probe.Call<AFX_MODULE_STATE*>("ProbeState"));
        EXPECT_EQ(Found(ID_SHARED), probe.handle());
    }
    AfxSetResourceHandle(titled.handle());
    EXPECT_EQ(Found(ID_SHARED), titled.handle());
    AfxSetResourceHandle(::GetModuleHandle(nullptr));
}

TEST(ResourceChain, NewestModuleComesBeforeTheOlderOne) {
    const LoadedModule probe(L"probe.dll");
    EXPECT_EQ(Found(ID_MODULES), probe.handle());
    {
        const LoadedModule titled(L"titled.dll");
        EXPECT_EQ(Found(ID_MODULES), titled.handle());
        EXPECT_EQ(Found(ID_PROBE), probe.handle());
    }
    EXPECT_EQ(Found(ID_MODULES), probe.handle());
}

TEST(ResourceChain, ModulesMayLeaveInAnyOrder) {
    LoadedModule probe(L"probe.dll");
    const LoadedModule titled(L"titled.dll");
    probe.Free();
    EXPECT_EQ(Found(ID_PROBE), nullptr);
    EXPECT_EQ(Found(ID_MODULES), titled.handle());
}

TEST(ResourceChain, LanguageModulesComeAfterAllModulesOfTheirOwn) {
    const TemporaryFolder folder;
    const LoadedModule older(folder.Put(L"probe.dll", L"Older.dll"));
    folder.Put(L"language_right.dll", L"NewerLOC.dll");
    const LoadedModule newer(folder.Put(L"titled.dll", L"Newer.dll"));
    ASSERT_TRUE(newer.handle());
    EXPECT_NE(Found(ID_LANGUAGE), nullptr);
    EXPECT_EQ(Found(ID_ANYWHERE), newer.handle());
    EXPECT_EQ(Found(ID_PROBE), older.handle());
}

TEST(ResourceChain, LanguageModulesComeBeforeTheSystems) {
    const TemporaryFolder folder;
    folder.Put(L"language_right.dll", L"KarteLOC.dll");
    const ChainEntry system(L"language_other.dll", true);
    EXPECT_EQ(Text(IDS_WHICH), L"another one");
    EXPECT_EQ(Found(ID_ANYWHERE), system.handle());
    const LoadedModule map(folder.Put(L"probe.dll", L"Karte.dll"));
    EXPECT_EQ(Text(IDS_WHICH), L"the right one");
    EXPECT_EQ(Found(ID_ANYWHERE), map.handle());
}

TEST(ResourceChain, ModulesComeBeforeTheSystems) {
    const ChainEntry module(L"language_right.dll", false);
    const ChainEntry system(L"language_other.dll", true);
    EXPECT_EQ(Found(ID_LANGUAGE), module.handle());
    EXPECT_EQ(Text(IDS_WHICH), L"the right one");
}

TEST(ResourceChain, FrameworkComesLast) {
    const LPCTSTR block = MAKEINTRESOURCE(AFX_IDP_PARSE_INT / 16 + 1);
    EXPECT_EQ(AfxFindResourceHandle(block, RT_STRING), FrameworkModule());
    AFX_MODULE_STATE other(TRUE, &AfxWndProc);
    AFX_MANAGE_STATE(&other);
    EXPECT_EQ(AfxFindResourceHandle(block, RT_STRING), FrameworkModule());
    EXPECT_EQ(Text(AFX_IDP_PARSE_INT), L"Please enter an integer.");
}

TEST(ResourceChain, WhatNoModuleHasIsNotFound) {
    const LoadedModule probe(L"probe.dll");
    EXPECT_EQ(Found(1), nullptr);
    EXPECT_EQ(AfxFindResourceHandle(L"No such name", RT_RCDATA), nullptr);
    EXPECT_EQ(AfxFindResourceHandle(MAKEINTRESOURCE(ID_PROBE), RT_DIALOG), nullptr);
}

TEST(ResourceChain, StringIsLookedForBeyondAModuleWhoseBlockLacksIt) {
    // The program, the probe and the language module have one string each of the same block.
    const TemporaryFolder folder;
    folder.Put(L"language_right.dll", L"KarteLOC.dll");
    const LoadedModule map(folder.Put(L"probe.dll", L"Karte.dll"));
    EXPECT_EQ(Text(IDS_OF_PROGRAM), L"Of the program");
    EXPECT_EQ(Text(IDS_OF_PROBE), L"Of the probe");
    EXPECT_EQ(Text(IDS_OF_LANGUAGE), L"Of the language module");
    EXPECT_EQ(Text(IDS_OF_NOBODY), L"");
}

TEST(ResourceChain, StringIsCutOffAtTheBuffersEnd) {
    wchar_t text[] = L"????????";
    EXPECT_EQ(AfxLoadString(IDS_OF_PROGRAM, text, 7), 6);
    EXPECT_STREQ(text, L"Of the");
    EXPECT_EQ(text[7], L'?');
    EXPECT_EQ(AfxLoadString(IDS_OF_PROGRAM, text, 1), 0);
    EXPECT_STREQ(text, L"");
    EXPECT_EQ(AfxLoadString(IDS_OF_PROGRAM, nullptr, 0), 0);
    wchar_t whole[256];
    EXPECT_EQ(AfxLoadString(IDS_OF_PROGRAM, whole), 14);
    EXPECT_STREQ(whole, L"Of the program");
    EXPECT_EQ(AfxLoadString(IDS_OF_NOBODY, whole), 0);
    EXPECT_STREQ(whole, L"");
}

TEST(ResourceChain, ExtensionModuleIsInitialisedOnceAndTakenOutWhole) {
    AFX_EXTENSION_MODULE module = {};
    const HMODULE program = ::GetModuleHandle(nullptr);
    ASSERT_TRUE(AfxInitExtensionModule(module, ::LoadLibrary(L"language_right.dll")));
    EXPECT_TRUE(module.bInitialized);
    EXPECT_EQ(module.hResource, module.hModule) << "it has no language module";
    const HMODULE first = module.hModule;
    EXPECT_TRUE(AfxInitExtensionModule(module, program));
    EXPECT_EQ(module.hModule, first);

    new CDynLinkLibrary(module);
    new CDynLinkLibrary(module);
    EXPECT_EQ(Found(ID_LANGUAGE), first);
    AfxTermExtensionModule(module);
    EXPECT_EQ(Found(ID_LANGUAGE), nullptr);
    EXPECT_FALSE(module.bInitialized);
    AfxTermExtensionModule(module); // nothing is left to do
    ::FreeLibrary(first);
}
