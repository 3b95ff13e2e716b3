// The init block of a template, whatever a language file says: nothing beyond its end is read.
#include "FieldsDialog.h"
#include "kit/kit.h"

#include <cstring>
#include <random>
#include <string>
#include <vector>

namespace {

using Bytes = std::vector<unsigned char>;

constexpr WORD addToList = 0x0401; // as 16-bit Windows had them
constexpr WORD addToCombo = 0x0403;

void Append(Bytes& block, const void* bytes, std::size_t count) {
    const auto* first = static_cast<const unsigned char*>(bytes);
    block.insert(block.end(), first, first + count);
}

/// A record; the length is the text's with its end unless another is given.
Bytes Record(WORD control, WORD message, std::string text, int length = -1) {
    text.push_back('\0');
    const auto said = length < 0 ? static_cast<DWORD>(text.size()) : static_cast<DWORD>(length);
    Bytes record;
    Append(record, &control, sizeof control);
    Append(record, &message, sizeof message);
    Append(record, &said, sizeof said);
    Append(record, text.data(), text.size());
    return record;
}

Bytes operator+(Bytes left, const Bytes& right) {
    Append(left, right.data(), right.size());
    return left;
}

const Bytes end = {0, 0};

/// Memory that ends where the next page cannot be read.
class Guarded {
public:
    Guarded()
        : m_pages(static_cast<unsigned char*>(
              ::VirtualAlloc(nullptr, 2 * pageSize, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE))) {
        DWORD before;
        EXPECT_TRUE(::VirtualProtect(m_pages + pageSize, pageSize, PAGE_NOACCESS, &before));
    }
    ~Guarded() { ::VirtualFree(m_pages, 0, MEM_RELEASE); }
    Guarded(const Guarded&) = delete;
    Guarded& operator=(const Guarded&) = delete;

    const void* Put(const Bytes& block) {
        unsigned char* const at = m_pages + pageSize - block.size();
        std::memcpy(at, block.data(), block.size());
        return at;
    }

private:
    static constexpr std::size_t pageSize = 4096;
    unsigned char* m_pages;
};

class InitBlock : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(dialog.Create(IDD_COMBOS)); }
    void TearDown() override { dialog.DestroyWindow(); }

    /// Executes a block with nothing in the boxes.
    bool Execute(const Bytes& block) {
        dialog.SendDlgItemMessage(IDC_COMBO, CB_RESETCONTENT);
        dialog.SendDlgItemMessage(IDC_LISTBOX, LB_RESETCONTENT);
        return afx_internal::ExecuteInitBlock(dialog.m_hWnd, m_memory.Put(block), block.size());
    }
    std::vector<std::wstring> Items() {
        std::vector<std::wstring> items;
        for (int i = 0; i < dialog.SendDlgItemMessage(IDC_COMBO, CB_GETCOUNT); ++i) {
            const auto row = static_cast<WPARAM>(i);
            std::wstring text(static_cast<std::size_t>(
                                  dialog.SendDlgItemMessage(IDC_COMBO, CB_GETLBTEXTLEN, row)),
                              L'\0');
            dialog.SendDlgItemMessage(IDC_COMBO, CB_GETLBTEXT, row,
                                      reinterpret_cast<LPARAM>(text.data()));
            items.push_back(text);
        }
        return items;
    }

    FieldsDialog dialog;

private:
    Guarded m_memory;
};

using Items = std::vector<std::wstring>;

} // namespace

TEST_F(InitBlock, AddsTheTextsOfItsRecords) {
    EXPECT_TRUE(Execute(Record(IDC_COMBO, addToCombo, "One") +
                        Record(IDC_LISTBOX, addToList, "Other") +
                        Record(IDC_COMBO, CB_ADDSTRING, "Two") +
                        Record(IDC_LISTBOX, LB_ADDSTRING, "Another") + end));
    EXPECT_EQ(Items(), (::Items{L"One", L"Two"}));
    EXPECT_EQ(dialog.SendDlgItemMessage(IDC_LISTBOX, LB_GETCOUNT), 2);
}

TEST_F(InitBlock, MayEndWithItsLastRecord) {
    EXPECT_TRUE(Execute(Record(IDC_COMBO, addToCombo, "One")));
    EXPECT_EQ(Items(), ::Items{L"One"});
    EXPECT_TRUE(Execute({}));
}

TEST_F(InitBlock, NothingBehindItsEndCounts) {
    EXPECT_TRUE(
        Execute(Record(IDC_COMBO, addToCombo, "One") + end + Record(IDC_COMBO, addToCombo, "Two")));
    EXPECT_EQ(Items(), ::Items{L"One"});
}

TEST_F(InitBlock, ARecordCutOffAnywhereIsRefused) {
    const Bytes first = Record(IDC_COMBO, addToCombo, "One");
    const Bytes second = Record(IDC_COMBO, addToCombo, "Two");
    for (std::size_t left = sizeof(WORD); left < second.size(); ++left) {
        Bytes cut = second;
        cut.resize(left);
        EXPECT_FALSE(Execute(first + cut)) << left;
        EXPECT_EQ(Items(), ::Items{L"One"}) << left;
    }
}

TEST_F(InitBlock, ALengthThatIsNotTheTextsIsRefused) {
    // Beyond the block; before the text's end; no text at all.
    for (const int length : {5, 0x7FFFFFFF, 3, 1, 0}) {
        EXPECT_FALSE(Execute(Record(IDC_COMBO, addToCombo, "One", length))) << length;
        EXPECT_EQ(Items(), ::Items{}) << length;
    }
}

TEST_F(InitBlock, MessagesThatDoNotAddATextAreNotSent) {
    const HWND window = dialog.m_hWnd;
    EXPECT_TRUE(Execute(Record(IDC_COMBO, addToCombo, "One")));
    for (const WORD message :
         {WORD{0}, WORD{CB_GETLBTEXT}, WORD{WM_GETTEXT}, WORD{WM_SETTEXT}, WORD{CB_RESETCONTENT},
          WORD{WM_DESTROY}, WORD{WM_CLOSE}, WORD{0x0402}}) {
        const Bytes block = Record(IDC_COMBO, message, "x") + end;
        Guarded memory;
        EXPECT_FALSE(afx_internal::ExecuteInitBlock(window, memory.Put(block), block.size()));
        EXPECT_EQ(Items(), ::Items{L"One"}) << message;
    }
}

TEST_F(InitBlock, IsGoodOrRefusedWhateverIsInIt) {
    const Bytes good = Record(IDC_COMBO, addToCombo, "First") +
                       Record(IDC_LISTBOX, addToList, "A text of some length") +
                       Record(IDC_COMBO, addToCombo, "Second") + end;
    std::mt19937 random(20);
    const auto below = [&](std::size_t limit) { return random() % limit; };
    int refused = 0;
    for (int round = 0; round < 3000; ++round) {
        Bytes block = good;
        for (std::size_t changes = 1 + below(4); changes > 0; --changes) {
            const std::size_t at = below(block.size());
            switch (below(4)) {
            case 0:
                block[at] = static_cast<unsigned char>(random());
                break;
            case 1:
                block[at] = below(2) == 0 ? 0 : 0xFF;
                break;
            case 2:
                block.resize(at + 1);
                break;
            default:
                block.insert(block.begin() + static_cast<std::ptrdiff_t>(at), block[below(at + 1)]);
            }
        }
        refused += !Execute(block);
        EXPECT_LE(Items().size(), 2U);
    }
    EXPECT_GT(refused, 1000);
    EXPECT_TRUE(Execute(good));
    EXPECT_EQ(Items(), (::Items{L"First", L"Second"}));
}

TEST_F(InitBlock, OfATemplateEndsWithItsResource) {
    FieldsDialog cut(nullptr, IDD_INIT_CUT);
    EXPECT_EQ(cut.DoModal(), -1);
}

TEST_F(InitBlock, WithoutASizeIsReadToItsEnd) {
    Bytes block = Record(IDC_COMBO, addToCombo, "One") + end;
    dialog.SendDlgItemMessage(IDC_COMBO, CB_RESETCONTENT);
    EXPECT_TRUE(dialog.ExecuteDlgInit(static_cast<LPVOID>(block.data())));
    EXPECT_EQ(Items(), ::Items{L"One"});
    EXPECT_TRUE(dialog.ExecuteDlgInit(static_cast<LPVOID>(nullptr)));
}
