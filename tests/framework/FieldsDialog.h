// A dialog of the test resources with one control of each kind of exchange. What it exchanges
// can be chosen by a test, so that one class serves them all.
#pragma once

#include "TestApp.h"
#include "TestResource.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

class FieldsDialog : public CDialog {
public:
    explicit FieldsDialog(CWnd* parent = nullptr, UINT dialogTemplate = IDD_FIELDS)
        : CDialog(dialogTemplate, parent) {}

    std::function<void(CDataExchange*)> exchange = [](CDataExchange*) {};
    std::function<void(FieldsDialog&)> onInit = [](FieldsDialog&) {};
    std::function<void(FieldsDialog&)> onNameChange = [](FieldsDialog&) {};
    std::function<void(FieldsDialog&)> onInner = [](FieldsDialog&) {};
    std::function<void(FieldsDialog&)> onCheck = [](FieldsDialog&) {};
    std::function<void(FieldsDialog&)> onPosted = [](FieldsDialog&) {}; // WM_APP
    std::function<void(FieldsDialog&)> onOk = [](FieldsDialog& d) { d.CDialog::OnOK(); };
    std::vector<std::string> log; // notifications, in the order in which they came

    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        onInit(*this);
        return TRUE;
    }
    void DoDataExchange(CDataExchange* pDX) override {
        CDialog::DoDataExchange(pDX);
        exchange(pDX);
    }
    void OnNameChange() {
        log.push_back("change");
        onNameChange(*this);
    }
    void OnNameKillFocus() { log.push_back("killfocus"); }
    void OnInner() {
        log.push_back("inner");
        onInner(*this);
    }
    void OnCheck() {
        log.push_back("check");
        onCheck(*this);
    }
    LRESULT OnPosted(WPARAM, LPARAM) {
        onPosted(*this);
        return 0;
    }
    void OnOK() override { onOk(*this); }
    using CDialog::EndDialog;

    DECLARE_MESSAGE_MAP()
};

// A modeless one whose object goes with its window.
class PassingDialog : public FieldsDialog {
public:
    explicit PassingDialog(int& alive) : m_alive(alive) { ++m_alive; }
    ~PassingDialog() override { --m_alive; }
    void PostNcDestroy() override { delete this; }

private:
    int& m_alive;
};

// The application's main window, for as long as it lives.
class MainWindow : public CWnd {
public:
    MainWindow() {
        EXPECT_TRUE(CreateEx(0, nullptr, L"Main", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 100, 100, 600,
                             400, nullptr, nullptr));
        theApp.m_pMainWnd = this;
    }
    ~MainWindow() override {
        theApp.m_pMainWnd = nullptr;
        DestroyWindow();
    }
};
