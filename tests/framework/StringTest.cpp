#include "StringTestResource.h"

#include <afx.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <malloc.h>
#include <map>
#include <random>
#include <string>
#include <thread>
#include <vector>

namespace {

/// Runs a function and says whether it throws an exception of the class.
template <typename Exception, typename Function>
bool throws(Function function) {
    try {
        function();
    } catch (Exception* exception) {
        exception->Delete();
        return true;
    }
    return false;
}

template <typename Function>
bool refuses(Function function) {
    return throws<CInvalidArgException>(function);
}

/// The number of blocks in use on the heap where strings have their buffers.
int usedHeapBlocks() {
    const HANDLE heap = reinterpret_cast<HANDLE>(_get_heap_handle());
    int count = 0;
    for (PROCESS_HEAP_ENTRY entry{}; HeapWalk(heap, &entry);)
        if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY)
            ++count;
    return count;
}

/// Whether two strings share one buffer.
bool shareBuffer(const CString& a, const CString& b) {
    return a.GetString() == b.GetString();
}

template <typename... Arguments>
CString formatted(LPCTSTR format, Arguments... arguments) {
    CString text;
    text.Format(format, arguments...);
    return text;
}

} // namespace

// --- Values ---

static_assert(sizeof(CStringW) == sizeof(void*) && sizeof(CStringA) == sizeof(void*));
static_assert(std::is_same_v<CString, CStringW>);
static_assert(std::is_nothrow_default_constructible_v<CString>);
static_assert(std::is_nothrow_move_constructible_v<CString>);
static_assert(std::is_nothrow_move_assignable_v<CString>);

TEST(CStringValue, StartsEmpty) {
    const CString text;
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(text.GetLength(), 0);
    EXPECT_EQ(text.GetAllocLength(), 0);
    EXPECT_STREQ(text, L"");
}

TEST(CStringValue, IsMadeFromTextsAndCharacters) {
    EXPECT_STREQ(CString(L"cota"), L"cota");
    EXPECT_STREQ(CString(L"cota", 2), L"co");
    EXPECT_STREQ(CString(L'x'), L"x");
    EXPECT_STREQ(CString(L'x', 3), L"xxx");
    EXPECT_STREQ(CString(L'x', 0), L"");
    EXPECT_STREQ(CString(L'x', -1), L"");
    EXPECT_STREQ(CString('x', 2), L"xx");
    EXPECT_STREQ(CString(static_cast<LPCWSTR>(nullptr)), L"");
    EXPECT_STREQ(CString(CSimpleString(L"cota")), L"cota");
    EXPECT_EQ(CString(L"a\0b", 3).GetLength(), 3);
}

TEST(CStringValue, RefusesANegativeLengthAndALengthWithoutAText) {
    EXPECT_TRUE(refuses([] { CString(L"cota", -1); }));
    EXPECT_TRUE(refuses([] { CString("cota", -1); }));
    EXPECT_TRUE(refuses([] { CString(static_cast<LPCWSTR>(nullptr), 1); }));
    EXPECT_FALSE(refuses([] { CString(static_cast<LPCWSTR>(nullptr), 0); }));
}

TEST(CStringValue, ConvertsBetweenAnsiAndUnicode) {
    const CStringA ansi("a\xF1o"); // the n with tilde of the Western code page
    EXPECT_STREQ(CStringW(ansi), L"a\u00F1o");
    EXPECT_STREQ(CStringA(L"a\u00F1o"), "a\xF1o");
    EXPECT_STREQ(CStringA(L"a\u4E2D"), "a?");
    EXPECT_STREQ(CStringW(reinterpret_cast<const unsigned char*>("\xF1")), L"\u00F1");
    EXPECT_STREQ(CStringW('\xF1', 2), L"\u00F1\u00F1");
    EXPECT_STREQ(CStringW("a\xF1o", 2), L"a\u00F1");
    EXPECT_STREQ(CStringA(L"a\u00F1o", 2), "a\xF1");

    CStringW wide;
    wide = ansi;
    EXPECT_STREQ(wide, L"a\u00F1o");
    wide = '\xF1';
    EXPECT_STREQ(wide, L"\u00F1");
    wide += "\xF1";
    wide += '\xF1';
    wide += static_cast<unsigned char>(0xF1);
    EXPECT_STREQ(wide, L"\u00F1\u00F1\u00F1\u00F1");
    EXPECT_STREQ(wide + '\xF1', L"\u00F1\u00F1\u00F1\u00F1\u00F1");
    EXPECT_TRUE(wide != "x");
    EXPECT_TRUE(ansi == L"a\u00F1o");
    EXPECT_TRUE(L"a\u00F1o" == ansi);
}

TEST(CStringValue, CopiesShareOneBufferUntilOneIsWritten) {
    const CString original(L"cota");
    CString copy(original);
    CString assigned;
    assigned = original;
    EXPECT_TRUE(shareBuffer(original, copy));
    EXPECT_TRUE(shareBuffer(original, assigned));

    copy.SetAt(0, L'n');
    assigned += L"s";
    EXPECT_STREQ(original, L"cota");
    EXPECT_STREQ(copy, L"nota");
    EXPECT_STREQ(assigned, L"cotas");
}

TEST(CStringValue, EachWriterLeavesASharedBuffer) {
    using Write = void (*)(CString&);
    const Write writers[] = {
        [](CString& text) { text.Empty(); },
        [](CString& text) { text.GetBuffer()[0] = L'x'; },
        [](CString& text) { text.GetBufferSetLength(2)[0] = L'x'; },
        [](CString& text) { text.LockBuffer()[0] = L'x'; },
        [](CString& text) { text.Truncate(1); },
        [](CString& text) { text.ReleaseBufferSetLength(1); },
        [](CString& text) { text = L"x"; },
        [](CString& text) { text.MakeUpper(); },
        [](CString& text) { text.MakeReverse(); },
        [](CString& text) { text.Replace(L'o', L'x'); },
        [](CString& text) { text.Replace(L"o", L"x"); },
        [](CString& text) { text.Remove(L'o'); },
        [](CString& text) { text.Insert(0, L'x'); },
        [](CString& text) { text.Delete(0); },
        [](CString& text) { text.TrimLeft(L'c'); },
        [](CString& text) { text.TrimRight(L'a'); },
        [](CString& text) { text.AppendFormat(L"%d", 1); },
    };
    for (const Write write : writers) {
        const CString original(L"cota");
        CString copy(original);
        write(copy);
        EXPECT_STREQ(original, L"cota") << "writer " << &write - writers;
        EXPECT_STRNE(copy, L"cota") << "writer " << &write - writers;
    }
}

TEST(CStringValue, MovesTakeTheBufferAlong) {
    CString source(L"cota");
    const LPCTSTR buffer = source;
    CString moved(std::move(source));
    EXPECT_EQ(moved.GetString(), buffer);
    CString assigned(L"otra");
    assigned = std::move(moved);
    EXPECT_EQ(assigned.GetString(), buffer);

    moved = L"de nuevo"; // a string that was moved from is an empty string
    EXPECT_STREQ(moved, L"de nuevo");
}

TEST(CStringValue, IsAssignedToItself) {
    CString text(L"cota");
    const CString& same = text;
    text = same;
    EXPECT_STREQ(text, L"cota");
    text = text.GetString();
    EXPECT_STREQ(text, L"cota");
    text = text.GetString() + 2;
    EXPECT_STREQ(text, L"ta");
    CString& self = text;
    text = std::move(self);
    EXPECT_STREQ(text, L"ta");
}

TEST(CStringValue, FillsAVectorAndAMap) {
    std::vector<CString> texts;
    std::map<CString, int> numbers;
    for (int i = 0; i < 100; ++i) {
        texts.push_back(formatted(L"%03d", i));
        numbers[texts.back()] = i;
    }
    texts.insert(texts.begin(), L"inicio");
    texts.erase(texts.begin() + 1);
    EXPECT_STREQ(texts[0], L"inicio");
    EXPECT_STREQ(texts[1], L"001");
    EXPECT_EQ(texts.size(), 100U);
    EXPECT_EQ(numbers.find(L"042")->second, 42);
    EXPECT_STREQ(numbers.rbegin()->first, L"099");
}

TEST(CStringValue, IsCopiedByManyThreadsAtOnce) {
    const CString original(L"cota");
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([&original] {
            for (int turn = 0; turn < 20'000; ++turn) {
                CString copy(original);
                const CString second(copy);
                copy += L'x';
            }
        });
    for (std::thread& thread : threads)
        thread.join();

    // Nobody else holds the buffer any more: it is written in place.
    const LPCTSTR buffer = original;
    CString& writable = const_cast<CString&>(original);
    writable.SetAt(0, L'n');
    EXPECT_EQ(original.GetString(), buffer);
    EXPECT_STREQ(original, L"nota");
}

// --- Buffers ---

TEST(CStringBuffer, RoundsItsSizeUp) {
    CString text;
    text.Preallocate(100);
    EXPECT_EQ(text.GetAllocLength(), 103);
    EXPECT_EQ(CString(L' ', 1024).GetAllocLength(), 1031);
    EXPECT_EQ(CString(L"abcdefghi").GetAllocLength(), 15);
}

TEST(CStringBuffer, KeepsItsSizeForAShorterText) {
    CString text(L' ', 1024);
    const LPCTSTR buffer = text;
    text = L"Soccer is best!";
    EXPECT_EQ(text.GetString(), buffer);
    text.Truncate(3);
    EXPECT_EQ(text.GetAllocLength(), 1031);
    EXPECT_STREQ(text, L"Soc");
    text.Truncate(9);
    EXPECT_STREQ(text, L"Soc");
    text.FreeExtra();
    EXPECT_EQ(text.GetAllocLength(), 7);
    EXPECT_STREQ(text, L"Soc");
    text.Empty();
    EXPECT_EQ(text.GetAllocLength(), 0);
}

TEST(CStringBuffer, IsWrittenThroughAPointer) {
    CString text(L"abcd");
    const LPTSTR buffer = text.GetBuffer(10);
    EXPECT_STREQ(buffer, L"abcd");
    EXPECT_GE(text.GetAllocLength(), 10);
    wcscpy(buffer, L"Hello");
    text.ReleaseBuffer();
    EXPECT_EQ(text.GetLength(), 5);

    wcscpy(text.GetBuffer(), L"Bye");
    text.ReleaseBuffer(2);
    EXPECT_STREQ(text, L"By");

    std::wmemcpy(text.GetBufferSetLength(3), L"Cup", 3);
    text.ReleaseBuffer();
    text += L" soccer";
    EXPECT_STREQ(text, L"Cup soccer");

    // A buffer filled to its end, without a terminator: the length stops there.
    const int capacity = text.GetAllocLength();
    std::wmemset(text.GetBuffer(capacity), L'x', static_cast<size_t>(capacity));
    text.ReleaseBuffer();
    EXPECT_EQ(text.GetLength(), capacity);
}

TEST(CStringBuffer, OfAnEmptyStringCanBeWritten) {
    CString text;
    text.GetBuffer(1)[0] = L'x';
    text.ReleaseBuffer(1);
    EXPECT_STREQ(text, L"x");
    CString untouched;
    untouched.ReleaseBuffer();
    EXPECT_TRUE(untouched.IsEmpty());
    EXPECT_STREQ(CString(), L"");
}

TEST(CStringBuffer, RefusesImpossibleLengths) {
    CString text(L"abc");
    EXPECT_TRUE(refuses([&] { text.GetBuffer(-1); }));
    EXPECT_TRUE(refuses([&] { text.GetBufferSetLength(-1); }));
    EXPECT_TRUE(refuses([&] { text.ReleaseBuffer(-2); }));
    EXPECT_TRUE(refuses([&] { text.ReleaseBufferSetLength(-1); }));
    EXPECT_TRUE(refuses([&] { text.ReleaseBufferSetLength(text.GetAllocLength() + 1); }));
    EXPECT_TRUE(refuses([&] { text.Truncate(-1); }));
    EXPECT_TRUE(refuses([&] { text.Append(L"x", -1); }));
    EXPECT_TRUE(refuses([&] { text.Append(nullptr, 1); }));
    EXPECT_TRUE(refuses([&] { text.SetString(nullptr); }));
    EXPECT_TRUE(refuses([&] { text.SetString(nullptr, 0); }));
    EXPECT_TRUE(refuses([&] { text.SetString(L"x", -1); }));
    EXPECT_STREQ(text, L"abc");
}

TEST(CStringBuffer, ReportsThatMemoryIsShort) {
    CString text(L"abc");
    EXPECT_TRUE(throws<CMemoryException>([&] { text.Preallocate(INT_MAX); }));
    EXPECT_STREQ(text, L"abc");
    EXPECT_TRUE(throws<CMemoryException>([&] { text.Append(L"", INT_MAX); }));
    EXPECT_STREQ(text, L"abc");
}

TEST(CStringBuffer, LockedIsHeldByOneStringAlone) {
    CString locked(L"Hello");
    const LPCTSTR buffer = locked.LockBuffer();
    const CString copy(locked);
    EXPECT_FALSE(shareBuffer(locked, copy));
    EXPECT_STREQ(copy, L"Hello");

    const CString other(L"Bye");
    locked = other;
    EXPECT_EQ(locked.GetString(), buffer);
    EXPECT_STREQ(locked, L"Bye");
    locked = CString(L"abc");
    EXPECT_EQ(locked.GetString(), buffer);
    EXPECT_STREQ(locked, L"abc");
    locked.Empty();
    EXPECT_EQ(locked.GetString(), buffer);
    EXPECT_TRUE(locked.IsEmpty());

    locked = L"xy";
    locked.UnlockBuffer();
    const CString sharing(locked);
    EXPECT_TRUE(shareBuffer(locked, sharing));
}

TEST(CStringBuffer, IsFreedWithItsLastString) {
    const CString longText(L'x', 1000);
    const auto useStrings = [&longText] {
        CString text(L"abc");
        const CString copy(text);
        text += copy;
        text = text.Left(2);
        text = longText;
        text.Replace(L"x", L"yy");
        CString moved(std::move(text));
        text = std::move(moved);
        CString locked(text);
        locked.LockBuffer();
        locked += L"more than it holds";
        CString stillLocked(L"abc");
        stillLocked.LockBuffer();
        stillLocked = text.Left(1);
        text.Format(L"%s", longText.GetString());
        text.FormatMessage(L"%1", L"x");
        const CStringA narrow(longText);
    };
    // Many rounds first: the heap keeps blocks of the sizes that are asked for often.
    for (int i = 0; i < 100; ++i)
        useStrings();
    const int before = usedHeapBlocks();
    for (int i = 0; i < 100; ++i)
        useStrings();
    EXPECT_GT(before, 0);
    EXPECT_EQ(usedHeapBlocks(), before);
}

TEST(CStringBuffer, SingleCharactersAreReadAndWritten) {
    CString text(L"abcdef");
    EXPECT_EQ(text.GetAt(2), L'c');
    EXPECT_EQ(text[5], L'f');
    EXPECT_EQ(text.GetAt(6), L'\0');
    EXPECT_TRUE(refuses([&] { text.GetAt(7); }));
    EXPECT_TRUE(refuses([&] { text.GetAt(-1); }));
    text.SetAt(1, L'a');
    EXPECT_STREQ(text, L"aacdef");
    EXPECT_TRUE(refuses([&] { text.SetAt(6, L'x'); }));
    EXPECT_TRUE(refuses([&] { text.SetAt(-1, L'x'); }));
    EXPECT_STREQ(text, L"aacdef");
}

TEST(CStringBuffer, SetStringCopiesUpToTheTerminator) {
    CString text;
    text.SetString(L"Soccer", 3);
    EXPECT_STREQ(text, L"Soc");
    text.SetString(L"Soccer", 100);
    EXPECT_EQ(text.GetLength(), 6);
    text.SetString(text.GetString() + 3, 3);
    EXPECT_STREQ(text, L"cer");
    text.SetString(L"");
    EXPECT_TRUE(text.IsEmpty());
}

TEST(CStringBuffer, AppendsTextsThatLieInTheStringItself) {
    CString text(L"abc");
    for (int i = 0; i < 5; ++i)
        text += text;
    EXPECT_EQ(text.GetLength(), 96);
    EXPECT_EQ(text.Find(L"abcabc", 90), 90);
    text = L"abc";
    text.Append(text.GetString() + 1, 2);
    EXPECT_STREQ(text, L"abcbc");
    text.AppendChar(L'd');
    text.Append(CString(L"e"));
    text.Append(L"f");
    EXPECT_STREQ(text, L"abcbcdef");
}

TEST(CStringBuffer, CharactersAreCopiedWithinTheirBuffer) {
    wchar_t letters[] = L"abcdef";
    CString::CopyCharsOverlapped(letters + 1, letters, 3);
    EXPECT_STREQ(letters, L"aabcef");
    CString::CopyChars(letters, 6, L"xy", 2);
    EXPECT_STREQ(letters, L"xybcef");
    CString::CopyChars(letters, 1, L"zz", 2);
    EXPECT_STREQ(letters, L"xybcef");
    EXPECT_EQ(CString::StringLength(L"soccer"), 6);
    EXPECT_EQ(CString::StringLength(nullptr), 0);
}

// --- Comparing ---

TEST(CStringCompare, IsByCharacterCode) {
    const CString text(L"b");
    EXPECT_EQ(text.Compare(L"b"), 0);
    EXPECT_GT(text.Compare(L"B"), 0);
    EXPECT_GT(text.Compare(L"Z"), 0);
    EXPECT_LT(text.Compare(L"ba"), 0);
    EXPECT_GT(text.Compare(L""), 0);
    EXPECT_GT(text.Compare(nullptr), 0);
    EXPECT_LT(text.Compare(L"\u00E1"), 0); // accented letters stand behind, whatever the locale
    EXPECT_LT(CStringA("z").Compare("\xE1"), 0);
    EXPECT_EQ(CString(L"a\0b", 3).Compare(L"a"), 0);
}

TEST(CStringCompare, IgnoresCaseOrFollowsTheLocaleOnDemand) {
    const CString text(L"Cota");
    EXPECT_EQ(text.CompareNoCase(L"COTA"), 0);
    EXPECT_LT(text.CompareNoCase(L"cotb"), 0);
    EXPECT_GT(text.CompareNoCase(nullptr), 0);
    EXPECT_EQ(text.Collate(L"Cota"), 0);
    EXPECT_NE(text.Collate(L"cota"), 0);
    EXPECT_EQ(text.CollateNoCase(L"cOTA"), 0);
    EXPECT_EQ(CStringA("Cota").CompareNoCase("COTA"), 0);
    EXPECT_EQ(CStringA("Cota").Collate("Cota"), 0);
    EXPECT_EQ(CStringA("Cota").CollateNoCase("COTA"), 0);
}

TEST(CStringCompare, OperatorsTakeStringsAndTextsOnBothSides) {
    const CString a(L"a");
    const CString b(L"b");
    EXPECT_TRUE(a == a && a == CString(L"a") && a == L"a" && L"a" == a && a == L'a' && L'a' == a);
    EXPECT_TRUE(a == "a" && "a" == a);
    EXPECT_FALSE(a == b || a == L"b" || L"b" == a || a == L'b' || a == "b" || a == L"aa");
    EXPECT_TRUE(a != b && a != L"b" && L"b" != a && a != L'b' && L'b' != a && a != "b");
    EXPECT_FALSE(a != a || a != L"a" || L"a" != a);
    EXPECT_TRUE(a < b && a < L"b" && L"a" < b && a <= b && a <= a && a <= L"a" && L"a" <= a);
    EXPECT_TRUE(b > a && b > L"a" && L"b" > a && b >= a && b >= b && b >= L"b" && L"b" >= b);
    EXPECT_FALSE(b < a || b < L"a" || L"b" < a || b <= a || b <= L"a" || L"b" <= a);
    EXPECT_FALSE(a > b || a > L"b" || L"a" > b || a >= b || a >= L"b" || L"a" >= b);
    EXPECT_TRUE(a < CString(L"aa") && CString() < a && CString() == L"");
}

// --- Searching ---

TEST(CStringSearch, FindsTextsAndCharacters) {
    const CString text(L"abcabc");
    EXPECT_EQ(text.Find(L"bc"), 1);
    EXPECT_EQ(text.Find(L"bc", 1), 1);
    EXPECT_EQ(text.Find(L"bc", 2), 4);
    EXPECT_EQ(text.Find(L"bc", 5), -1);
    EXPECT_EQ(text.Find(L"x"), -1);
    EXPECT_EQ(text.Find(L"abcabcabc"), -1);
    EXPECT_EQ(text.Find(L'c'), 2);
    EXPECT_EQ(text.Find(L'c', 3), 5);
    EXPECT_EQ(text.Find(L'x'), -1);
    EXPECT_EQ(text.Find(L'c', 6), -1);
    EXPECT_EQ(text.Find(L'a', 100), -1);
    EXPECT_EQ(text.Find(L'a', -1), -1);
    EXPECT_EQ(text.Find(L"a", 100), -1);
    EXPECT_EQ(text.Find(static_cast<LPCWSTR>(nullptr)), -1);
    EXPECT_EQ(text.ReverseFind(L'a'), 3);
    EXPECT_EQ(text.ReverseFind(L'x'), -1);
    EXPECT_EQ(text.FindOneOf(L"xcb"), 1);
    EXPECT_EQ(text.FindOneOf(L"xyz"), -1);
    EXPECT_EQ(text.FindOneOf(L""), -1);
    EXPECT_EQ(CString().Find(L'a'), -1);
}

TEST(CStringSearch, TakesPartsOut) {
    const CString text(L"abcdef");
    EXPECT_STREQ(text.Left(2), L"ab");
    EXPECT_STREQ(text.Left(100), L"abcdef");
    EXPECT_STREQ(text.Left(-1), L"");
    EXPECT_STREQ(text.Right(2), L"ef");
    EXPECT_STREQ(text.Right(100), L"abcdef");
    EXPECT_STREQ(text.Right(-1), L"");
    EXPECT_STREQ(text.Mid(2, 3), L"cde");
    EXPECT_STREQ(text.Mid(2), L"cdef");
    EXPECT_STREQ(text.Mid(4, 100), L"ef");
    EXPECT_STREQ(text.Mid(4, INT_MAX), L"ef");
    EXPECT_STREQ(text.Mid(6), L"");
    EXPECT_STREQ(text.Mid(100, 1), L"");
    EXPECT_STREQ(text.Mid(-5, 2), L"ab");
    EXPECT_STREQ(text.Mid(2, -1), L"");
    EXPECT_TRUE(shareBuffer(text, text.Left(6)));
    EXPECT_STREQ(CString(L"cabbage").SpanIncluding(L"abc"), L"cabba");
    EXPECT_STREQ(CString(L"cabbage").SpanIncluding(L"xyz"), L"");
    EXPECT_STREQ(CString(L"cab").SpanIncluding(L"abc"), L"cab");
    EXPECT_STREQ(CString(L"World Cup").SpanExcluding(L";,.-: "), L"World");
    EXPECT_STREQ(CString(L"World").SpanExcluding(L" "), L"World");
}

TEST(CStringSearch, SplitsIntoTokens) {
    const CString text(L"%First Second#Third");
    std::vector<CString> tokens;
    int position = 0;
    for (CString token = text.Tokenize(L"% #", position); position != -1;
         token = text.Tokenize(L"% #", position))
        tokens.push_back(token);
    EXPECT_EQ(tokens, (std::vector<CString>{L"First", L"Second", L"Third"}));
    EXPECT_STREQ(text.Tokenize(L"% #", position), L"");
    EXPECT_EQ(position, -1);

    position = 0;
    EXPECT_STREQ(CString(L" , ,").Tokenize(L", ", position), L"");
    EXPECT_EQ(position, -1);
    position = 2;
    EXPECT_STREQ(CString(L"a,b,c").Tokenize(L",", position), L"b");
    EXPECT_EQ(position, 4);
    position = 0;
    EXPECT_STREQ(CString(L"a b").Tokenize(L"", position), L"a b");
}

TEST(CStringSearch, ExtractsAPartBetweenSeparators) {
    CString part(L"antes");
    EXPECT_TRUE(AfxExtractSubString(part, L"uno\ndos\n\ncuatro", 0));
    EXPECT_STREQ(part, L"uno");
    EXPECT_TRUE(AfxExtractSubString(part, L"uno\ndos\n\ncuatro", 1));
    EXPECT_STREQ(part, L"dos");
    EXPECT_TRUE(AfxExtractSubString(part, L"uno\ndos\n\ncuatro", 2));
    EXPECT_STREQ(part, L"");
    EXPECT_TRUE(AfxExtractSubString(part, L"uno\ndos\n\ncuatro", 3));
    EXPECT_STREQ(part, L"cuatro");
    EXPECT_FALSE(AfxExtractSubString(part, L"uno\ndos\n\ncuatro", 4));
    EXPECT_STREQ(part, L"");
    EXPECT_TRUE(AfxExtractSubString(part, L"uno;dos", 1, L';'));
    EXPECT_STREQ(part, L"dos");
    EXPECT_FALSE(AfxExtractSubString(part, nullptr, 0));
    EXPECT_STREQ(part, L"dos");
}

// --- Editing ---

TEST(CStringEdit, Trims) {
    EXPECT_STREQ(CString(L" \t\r\n a b \n ").Trim(), L"a b");
    EXPECT_STREQ(CString(L"  a ").TrimLeft(), L"a ");
    EXPECT_STREQ(CString(L" a  ").TrimRight(), L" a");
    EXPECT_STREQ(CString(L"   ").Trim(), L"");
    EXPECT_STREQ(CString(L"**a*b**").Trim(L'*'), L"a*b");
    EXPECT_STREQ(CString(L"**a**").TrimLeft(L'*'), L"a**");
    EXPECT_STREQ(CString(L"**a**").TrimRight(L'*'), L"**a");
    EXPECT_STREQ(CString(L"{ }a {}").Trim(L"{ }"), L"a");
    EXPECT_STREQ(CString(L"{ }a {}").TrimLeft(L"{ }"), L"a {}");
    EXPECT_STREQ(CString(L"{ }a {}").TrimRight(L"{ }"), L"{ }a");
    EXPECT_STREQ(CStringA("\xF1 a \xF1").Trim('\xF1'), " a ");
    const CString clean(L"a");
    EXPECT_TRUE(shareBuffer(CString(clean).Trim(), clean));
}

TEST(CStringEdit, ChangesCaseOfAccentedLettersToo) {
    EXPECT_STREQ(CString(L"a\u00F1o 1").MakeUpper(), L"A\u00D1O 1");
    EXPECT_STREQ(CString(L"A\u00D1O 1").MakeLower(), L"a\u00F1o 1");
    EXPECT_STREQ(CStringA("a\xF1o").MakeUpper(), "A\xD1O");
    EXPECT_STREQ(CString(L"abc").MakeReverse(), L"cba");
    EXPECT_STREQ(CString().MakeUpper().MakeReverse(), L"");
}

TEST(CStringEdit, ReplacesAndRemoves) {
    CString text(L"C++ is best, C++ lasts");
    EXPECT_EQ(text.Replace(L"C++", L"It"), 2);
    EXPECT_STREQ(text, L"It is best, It lasts");
    EXPECT_EQ(text.Replace(L"It", L"Everything"), 2);
    EXPECT_STREQ(text, L"Everything is best, Everything lasts");
    EXPECT_EQ(text.Replace(L", Everything", nullptr), 1);
    EXPECT_STREQ(text, L"Everything is best lasts");
    EXPECT_EQ(text.Replace(L"", L"x"), 0);
    EXPECT_EQ(text.Replace(L"nothing", L"x"), 0);
    EXPECT_EQ(text.Replace(L't', L'T'), 3);
    EXPECT_EQ(text.Replace(L'q', L'x'), 0);
    EXPECT_EQ(text.Replace(L'e', L'e'), 0);
    EXPECT_STREQ(text, L"EveryThing is besT lasTs");
    EXPECT_EQ(text.Remove(L's'), 4);
    EXPECT_STREQ(text, L"EveryThing i beT laT");
    EXPECT_EQ(text.Remove(L'q'), 0);
    text = L"aaa";
    EXPECT_EQ(text.Replace(L"aa", L"a"), 1);
    EXPECT_STREQ(text, L"aa");
    EXPECT_EQ(text.Replace(text, text + text), 1);
    EXPECT_STREQ(text, L"aaaa");
}

TEST(CStringEdit, InsertsAndDeletes) {
    CString text(L"ad");
    EXPECT_EQ(text.Insert(1, L"bc"), 4);
    EXPECT_STREQ(text, L"abcd");
    EXPECT_EQ(text.Insert(100, L'e'), 5);
    EXPECT_EQ(text.Insert(-1, L'>'), 6);
    EXPECT_STREQ(text, L">abcde");
    EXPECT_EQ(text.Insert(1, L""), 6);
    EXPECT_EQ(text.Insert(1, static_cast<LPCWSTR>(nullptr)), 6);
    EXPECT_EQ(text.Insert(1, text), 12);
    EXPECT_STREQ(text, L">>abcdeabcde");
    EXPECT_EQ(text.Delete(0, 2), 10);
    EXPECT_EQ(text.Delete(1), 9);
    EXPECT_STREQ(text, L"acdeabcde");
    EXPECT_EQ(text.Delete(4, INT_MAX), 4);
    EXPECT_EQ(text.Delete(100), 4);
    EXPECT_EQ(text.Delete(0, -1), 4);
    EXPECT_EQ(text.Delete(0, 0), 4);
    EXPECT_STREQ(text, L"acde");
}

TEST(CStringEdit, Concatenates) {
    const CString a(L"a");
    const CString b(L"b");
    EXPECT_STREQ(a + b, L"ab");
    EXPECT_STREQ(a + L"x", L"ax");
    EXPECT_STREQ(L"x" + a, L"xa");
    EXPECT_STREQ(a + L'x', L"ax");
    EXPECT_STREQ(L'x' + a, L"xa");
    EXPECT_STREQ(a + 'x', L"ax");
    EXPECT_STREQ('x' + a, L"xa");
    EXPECT_STREQ(a + static_cast<LPCWSTR>(nullptr), L"a");
    EXPECT_STREQ(CString() + CString(), L"");
    EXPECT_STREQ(L"<" + a + L", " + b + L">", L"<a, b>");
    EXPECT_STREQ(CStringA("a") + "b" + L'c', "abc");
}

TEST(CStringEdit, ExchangesTextsWithAutomation) {
    BSTR text = CString(L"a\u00F1o").AllocSysString();
    EXPECT_EQ(SysStringLen(text), 3U);
    EXPECT_STREQ(text, L"a\u00F1o");
    EXPECT_EQ(CStringA("\xF1").SetSysString(&text), text);
    EXPECT_STREQ(text, L"\u00F1");
    SysFreeString(text);
}

TEST(CStringEdit, ReadsTheEnvironment) {
    SetEnvironmentVariable(L"CUADROS_STRING_TEST", L"a\u00F1o");
    CString value;
    EXPECT_TRUE(value.GetEnvironmentVariable(L"CUADROS_STRING_TEST"));
    EXPECT_STREQ(value, L"a\u00F1o");
    CStringA narrow;
    EXPECT_TRUE(narrow.GetEnvironmentVariable("CUADROS_STRING_TEST"));
    EXPECT_STREQ(narrow, "a\xF1o");
    SetEnvironmentVariable(L"CUADROS_STRING_TEST", nullptr);
    EXPECT_FALSE(value.GetEnvironmentVariable(L"CUADROS_STRING_TEST"));
    EXPECT_STREQ(value, L"");
}

// --- Formatting ---

TEST(CStringFormat, PrintsNumbers) {
    EXPECT_STREQ(formatted(L"%d %u %5d|%-5d|%05d %x", -7, 7U, 42, 42, 42, 255),
                 L"-7 7    42|42   |00042 ff");
    EXPECT_STREQ(formatted(L"%.1lf %.2lf %.3lf %lf", 1.23, 1.236, -2.0004, 0.1),
                 L"1.2 1.24 -2.000 0.100000");
    EXPECT_STREQ(formatted(L"%g %g", 0.5, 100000.0), L"0.5 100000");
    EXPECT_STREQ(formatted(L"%I64d %lld %ld", 1LL << 40, -1LL, 5L), L"1099511627776 -1 5");
    EXPECT_STREQ(formatted(L"%d, %.2lf", 3, 4.5), L"3, 4.50");
    EXPECT_STREQ(formatted(L"100%%"), L"100%");
    EXPECT_STREQ(formatted(L""), L"");
}

TEST(CStringFormat, PrintsTextsByTheirOwnWidth) {
    EXPECT_STREQ(formatted(L"%s %S %hs %ls", L"w\u00F1", "n\xF1", "h", L"l"),
                 L"w\u00F1 n\u00F1 h l");
    EXPECT_STREQ(formatted(L"%c%d", L'\u00F1', 12), L"\u00F1"
                                                    L"12");
    EXPECT_STREQ(formatted(L"%s-%s", static_cast<LPCTSTR>(CString(L"a")), L"b"), L"a-b");
    CStringA narrow;
    narrow.Format("%s %S %c %.2f", "n", L"w", 'x', 2.5);
    EXPECT_STREQ(narrow, "n w x 2.50");
}

TEST(CStringFormat, TakesPrecisionAndWidthFromTheArguments) {
    EXPECT_STREQ(formatted(L"%.*lf", 2, 1.239), L"1.24");
    EXPECT_STREQ(formatted(L"%.*lf", 0, 1.6), L"2");
    EXPECT_STREQ(formatted(L"%8.*f|%*.*f|%-*.1f|", 1, 2.0, 6, 3, 2.0, 5, 2.0),
                 L"     2.0| 2.000|2.0  |");
    EXPECT_STREQ(formatted(L"%*d|%*d", 4, 1, -4, 1), L"   1|1   ");
    EXPECT_STREQ(formatted(L"%.*s|%.*d", 2, L"abc", 3, 7), L"ab|007");
}

TEST(CStringFormat, TakesANegativePrecisionForNone) {
    for (const int precision : {-1, -2, -6, -7, -100, std::numeric_limits<int>::min()}) {
        EXPECT_STREQ(formatted(L"%.*lf", precision, 1.5), L"1.500000") << precision;
        EXPECT_STREQ(
            formatted(L"%10.*f|%*.*f|%.*g", precision, 1.5, 9, precision, 1.5, precision, 0.25),
            L"  1.500000| 1.500000|0.25")
            << precision;
        EXPECT_STREQ(formatted(L"%.*s|%.*d", precision, L"abc", precision, 5), L"abc|5")
            << precision;
    }
    CStringA narrow;
    narrow.Format("%.*lf", -3, 1.5);
    EXPECT_STREQ(narrow, "1.500000");
}

TEST(CStringFormat, KeepsItsArgumentsInStepBesideAStarPrecision) {
    EXPECT_STREQ(formatted(L"%d %s %S %c %I64d %lld %% %.*lf %hd %x %p|%u %g %c", 1, L"w", "n",
                           L'c', 1LL << 40, -2LL, -5, 1.5, 3, 255, nullptr, 4U, 0.5, L'z'),
                 L"1 w n c 1099511627776 -2 % 1.500000 3 ff 0000000000000000|4 0.5 z");
    EXPECT_STREQ(formatted(L"%.*f%", 1, 1.5), L"1.5");
    EXPECT_STREQ(formatted(L"%.3f %.f %.*f", 1.5, 2.0, 1, 1.5), L"1.500 2 1.5");
}

TEST(CStringFormat, ResultsHaveAnyLength) {
    for (const int length : {254, 255, 256, 257, 258, 1000, 100'000}) {
        const CString text(L'x', length);
        const CString result = formatted(L"<%s>", static_cast<LPCTSTR>(text));
        EXPECT_EQ(result.GetLength(), length + 2);
        EXPECT_STREQ(result, L"<" + text + L">");
    }
    EXPECT_EQ(formatted(L"%lf", 1e300).GetLength(), 308);
    EXPECT_EQ(formatted(L"%.*lf", 400, 1.0).GetLength(), 402);
}

TEST(CStringFormat, SurvivesTheStringAsItsOwnArgument) {
    CString text(L"abc");
    text.Format(L"%s-%s", text.GetString(), text.GetString());
    EXPECT_STREQ(text, L"abc-abc");
    text = CString(L'x', 300);
    text.Format(L"%s%s", text.GetString(), text.GetString());
    EXPECT_STREQ(text, CString(L'x', 600));
    text.AppendFormat(L"%s", text.GetString());
    EXPECT_STREQ(text, CString(L'x', 1200));
    text = L"%d!";
    text.Format(text, 5);
    EXPECT_STREQ(text, L"5!");
}

TEST(CStringFormat, Appends) {
    CString text(L"a");
    text.AppendFormat(L"%d", 1);
    text.AppendFormat(L"%.*f", -1, 0.5);
    EXPECT_STREQ(text, L"a10.500000");
}

TEST(CStringFormat, RefusesNoFormat) {
    CString text(L"a");
    EXPECT_TRUE(refuses([&] { text.Format(static_cast<LPCTSTR>(nullptr)); }));
    EXPECT_TRUE(refuses([&] { text.AppendFormat(static_cast<LPCTSTR>(nullptr)); }));
    EXPECT_TRUE(refuses([&] { text.FormatMessage(static_cast<LPCTSTR>(nullptr)); }));
    EXPECT_STREQ(text, L"a");
}

TEST(CStringFormat, PrintsMessagesWithNumberedInserts) {
    CString text;
    text.FormatMessage(L"%2!s! and %1!d!", 7, L"x");
    EXPECT_STREQ(text, L"x and 7");
    text.FormatMessage(L"%1 %1", L"twice");
    EXPECT_STREQ(text, L"twice twice");
    CStringA narrow;
    narrow.FormatMessage("%1!d!", 7);
    EXPECT_STREQ(narrow, "7");
}

// --- Resources ---

class CStringResource : public testing::Test {
protected:
    HINSTANCE m_module = GetModuleHandle(nullptr);
};

TEST_F(CStringResource, IsLoadedFromAModule) {
    CString text;
    EXPECT_TRUE(text.LoadString(m_module, IDS_STRING_TEST_PLAIN));
    EXPECT_STREQ(text, L"Curva de nivel, a\u00F1o 2");
    EXPECT_TRUE(text.LoadString(m_module, IDS_STRING_TEST_LAST));
    EXPECT_STREQ(text, L"Fin");
    EXPECT_TRUE(text.LoadString(m_module, IDS_STRING_TEST_LAST, MAKELANGID(LANG_NEUTRAL, 0)));
    EXPECT_STREQ(text, L"Fin");
    CStringA narrow;
    EXPECT_TRUE(narrow.LoadString(m_module, IDS_STRING_TEST_PLAIN));
    EXPECT_STREQ(narrow, "Curva de nivel, a\xF1o 2");
}

TEST_F(CStringResource, IsEmptyWhenMissing) {
    for (const UINT id : {IDS_STRING_TEST_MISSING, IDS_STRING_TEST_NOBLOCK}) {
        CString text(L"antes");
        EXPECT_FALSE(text.LoadString(m_module, id));
        EXPECT_STREQ(text, L"");
        text = L"antes";
        EXPECT_FALSE(text.LoadString(m_module, id, MAKELANGID(LANG_NEUTRAL, 0)));
        EXPECT_STREQ(text, L"");
        text = L"antes";
        EXPECT_FALSE(afx_internal::LoadStringFrom(m_module, id, text));
        EXPECT_STREQ(text, L"");
    }
}

TEST_F(CStringResource, IsLoadedFromTheChain) {
    CString text;
    EXPECT_TRUE(text.LoadString(IDS_STRING_TEST_PLAIN));
    EXPECT_STREQ(text, L"Curva de nivel, a\u00F1o 2");
    EXPECT_STREQ(CString(MAKEINTRESOURCE(IDS_STRING_TEST_LAST)), L"Fin");
    EXPECT_STREQ(CString(MAKEINTRESOURCEA(IDS_STRING_TEST_LAST)), L"Fin");
    EXPECT_STREQ(CStringA(MAKEINTRESOURCE(IDS_STRING_TEST_LAST)), "Fin");
    EXPECT_STREQ(CString(MAKEINTRESOURCE(IDS_STRING_TEST_MISSING)), L"");
    EXPECT_FALSE(text.LoadString(IDS_STRING_TEST_NOBLOCK));
    EXPECT_STREQ(text, L"");
}

TEST_F(CStringResource, IsAFormat) {
    CString text;
    text.Format(IDS_STRING_TEST_FORMAT, 3, 1.25);
    EXPECT_STREQ(text, L"3 puntos, 1.25 m");
    text.AppendFormat(IDS_STRING_TEST_FORMAT, 4, 1.75);
    EXPECT_STREQ(text, L"3 puntos, 1.25 m4 puntos, 1.75 m");
    text.FormatMessage(IDS_STRING_TEST_MESSAGE, 7, L"x");
    EXPECT_STREQ(text, L"x antes de 7");
    EXPECT_TRUE(throws<CResourceException>([&] { text.Format(IDS_STRING_TEST_MISSING, 1); }));
    EXPECT_STREQ(text, L"x antes de 7");
}

TEST_F(CStringResource, TakesInserts) {
    CString text(L"antes");
    AfxFormatString1(text, IDS_STRING_TEST_INSERTS, L"uno");
    EXPECT_STREQ(text, L"%2 antes de uno, uno al 100% y %3");
    AfxFormatString2(text, IDS_STRING_TEST_INSERTS, L"%2", text.Left(2));
    EXPECT_STREQ(text, L"%2 antes de %2, %2 al 100% y %3");
    AfxFormatString2(text, IDS_STRING_TEST_INSERTS, nullptr, L"dos");
    EXPECT_STREQ(text, L"dos antes de ,  al 100% y %3");
    AfxFormatString1(text, IDS_STRING_TEST_MISSING, L"uno");
    EXPECT_STREQ(text, L"");
}
