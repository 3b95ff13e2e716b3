// The framework's exceptions: who deletes them, what they tell a person, and the documented macros
// around them.
#include "TestApp.h"
#include "afxres.h"
#include "kit/kit.h"
#include "modules/ModuleResource.h"

#include <functional>
#include <string>

namespace {

/// Counts its objects.
class Counted : public CException {
    DECLARE_DYNAMIC(Counted)

public:
    Counted() { ++alive; }
    explicit Counted(BOOL autoDelete) : CException(autoDelete) { ++alive; }
    ~Counted() override { --alive; }
    static inline int alive = 0;
};

class Other : public Counted {
    DECLARE_DYNAMIC(Other)
};

IMPLEMENT_DYNAMIC(Counted, CException)
IMPLEMENT_DYNAMIC(Other, Counted)

class ExceptionMacros : public testing::Test {
    void TearDown() override { EXPECT_EQ(Counted::alive, 0); }
};

std::wstring Resource(UINT id) {
    CString text;
    EXPECT_TRUE(text.LoadString(id)) << id;
    return text.GetString();
}

std::wstring MessageOf(const CException& exception) {
    wchar_t text[512] = L"untouched";
    EXPECT_TRUE(exception.GetErrorMessage(text, 512));
    return text;
}

} // namespace

// ---- The framework's own kinds

namespace {

struct Kind {
    const char* name;
    void(AFXAPI* raise)();
    CRuntimeClass* record;
    UINT text;
};

void PrintTo(const Kind& kind, std::ostream* out) {
    *out << kind.name;
}

class ExceptionKinds : public testing::TestWithParam<Kind> {};

INSTANTIATE_TEST_SUITE_P(
    Each, ExceptionKinds,
    testing::Values(Kind{"Memory", AfxThrowMemoryException, RUNTIME_CLASS(CMemoryException),
                         AFX_IDS_MEMORY_EXCEPTION},
                    Kind{"Resource", AfxThrowResourceException, RUNTIME_CLASS(CResourceException),
                         AFX_IDS_RESOURCE_EXCEPTION},
                    Kind{"User", AfxThrowUserException, RUNTIME_CLASS(CUserException),
                         AFX_IDS_USER_EXCEPTION},
                    Kind{"NotSupported", AfxThrowNotSupportedException,
                         RUNTIME_CLASS(CNotSupportedException), AFX_IDS_NOT_SUPPORTED_EXCEPTION},
                    Kind{"InvalidArg", AfxThrowInvalidArgException,
                         RUNTIME_CLASS(CInvalidArgException), AFX_IDS_INVALID_ARG_EXCEPTION}),
    [](const auto& info) { return info.param.name; });

} // namespace

TEST_P(ExceptionKinds, IsThrownAsItselfAndTellsWhatHappened) {
    CException* caught = nullptr;
    try {
        GetParam().raise();
    } catch (CException* e) {
        caught = e;
    }
    ASSERT_NE(caught, nullptr);
    EXPECT_EQ(caught->GetRuntimeClass(), GetParam().record);
    EXPECT_TRUE(caught->IsKindOf(RUNTIME_CLASS(CSimpleException)));
    EXPECT_EQ(MessageOf(*caught), Resource(GetParam().text));
    caught->Delete();
}

TEST_P(ExceptionKinds, IsReportedInABox) {
    CException* caught = nullptr;
    try {
        GetParam().raise();
    } catch (CException* e) {
        caught = e;
    }
    ASSERT_NE(caught, nullptr);
    kit::Script script;
    script.expectMessage(L"Framework tests", Resource(GetParam().text), MB_ICONEXCLAMATION)
        .buttons(MB_OK);
    EXPECT_EQ(script.run([&] { return caught->ReportError(); }), IDOK);
    caught->Delete();
}

TEST(Exceptions, MemoryExceptionNeedsNoMemory) {
    const auto thrown = [] {
        CException* caught = nullptr;
        try {
            AfxThrowMemoryException();
        } catch (CMemoryException* e) {
            caught = e;
        }
        caught->Delete();
        return caught;
    };
    CException* const first = thrown();
    EXPECT_EQ(thrown(), first) << "it was made beforehand, and Delete leaves it";
}

// ---- Deleting

TEST(Exceptions, DeleteFreesWhatWasMadeWithNew) {
    auto* const exception = new Counted;
    EXPECT_EQ(Counted::alive, 1);
    exception->Delete();
    EXPECT_EQ(Counted::alive, 0);
}

TEST(Exceptions, DeleteLeavesWhatWasNot) {
    {
        Counted exception(FALSE);
        exception.Delete();
        EXPECT_EQ(Counted::alive, 1);
    }
    EXPECT_EQ(Counted::alive, 0);
}

// ---- Telling

TEST(Exceptions, MessageIsCutOffAtTheBuffersEnd) {
    const CUserException exception(FALSE);
    wchar_t text[] = L"????????";
    UINT context = 77;
    EXPECT_TRUE(exception.GetErrorMessage(text, 4, &context));
    EXPECT_EQ(text, Resource(AFX_IDS_USER_EXCEPTION).substr(0, 3));
    EXPECT_EQ(text[4], L'?');
    EXPECT_EQ(context, 0U);
}

TEST(Exceptions, MessageWithoutRoomIsNone) {
    const CUserException exception(FALSE);
    wchar_t text[] = L"?";
    EXPECT_FALSE(exception.GetErrorMessage(text, 0));
    EXPECT_EQ(text[0], L'?');
    EXPECT_FALSE(exception.GetErrorMessage(nullptr, 10));
}

TEST(Exceptions, KindWithoutAMessageSaysSo) {
    const CSimpleException simple(FALSE);
    const Counted counted(FALSE);
    for (const CException* exception :
         {static_cast<const CException*>(&simple), static_cast<const CException*>(&counted)}) {
        wchar_t text[] = L"untouched";
        UINT context = 77;
        EXPECT_FALSE(exception->GetErrorMessage(text, 10, &context));
        EXPECT_STREQ(text, L"");
        EXPECT_EQ(context, 0U);
    }
}

TEST(Exceptions, KindWithoutAMessageIsReportedByTheCallersText) {
    Counted exception(FALSE);
    kit::Script script;
    script.expectMessage(L"Framework tests", L"Of the program", MB_ICONQUESTION)
        .buttons(MB_YESNO)
        .answer(IDNO);
    EXPECT_EQ(script.run([&] {
        return exception.ReportError(MB_YESNO | MB_ICONQUESTION, IDS_OF_PROGRAM);
    }),
              IDNO);
}

TEST(Exceptions, KindWithoutAnyMessageIsReportedAllTheSame) {
    Counted exception(FALSE);
    kit::Script script;
    script.expectMessage(L"Framework tests", Resource(AFX_IDP_NO_ERROR_AVAILABLE),
                         MB_ICONEXCLAMATION);
    EXPECT_EQ(script.run([&] { return exception.ReportError(); }), IDOK);
}

// ---- The macros

TEST_F(ExceptionMacros, CatchDeletesWhatItCaught) {
    int caught = 0;
    TRY {
        THROW(new Counted);
    }
    CATCH(Counted, e) {
        EXPECT_EQ(Counted::alive, 1);
        EXPECT_TRUE(e->IsKindOf(RUNTIME_CLASS(Counted)));
        ++caught;
    }
    END_CATCH
    EXPECT_EQ(caught, 1);
}

TEST_F(ExceptionMacros, NothingIsCaughtWhereNothingIsThrown) {
    int steps = 0;
    TRY {
        ++steps;
    }
    CATCH(CException, e) {
        ADD_FAILURE() << e->GetRuntimeClass()->m_lpszClassName;
    }
    END_CATCH
    EXPECT_EQ(steps, 1);
}

TEST_F(ExceptionMacros, FirstCatchOfTheClassTakesIt) {
    const auto whoCatches = [](const std::function<void()>& raise) {
        std::string who;
        TRY {
            raise();
        }
        CATCH(Other, e) {
            who = "Other";
        }
        AND_CATCH(Counted, e) {
            who = "Counted";
        }
        AND_CATCH_ALL(e) {
            who = "all";
        }
        END_CATCH_ALL
        return who;
    };
    EXPECT_EQ(whoCatches([] { THROW(new Other); }), "Other");
    EXPECT_EQ(whoCatches([] { THROW(new Counted); }), "Counted");
    EXPECT_EQ(whoCatches([] { AfxThrowUserException(); }), "all");
}

TEST_F(ExceptionMacros, ExceptionThrownOnIsDeletedByTheOuterCatchOnly) {
    int caught = 0;
    TRY{TRY{THROW(new Counted);
}
CATCH_ALL(e) {
    ++caught;
    THROW_LAST();
}
END_CATCH_ALL
}
CATCH(Counted, e) {
    EXPECT_EQ(Counted::alive, 1);
    ++caught;
}
END_CATCH
EXPECT_EQ(caught, 2);
}

TEST_F(ExceptionMacros, ExceptionThrownInstead) {
    TRY{TRY{THROW(new Counted);
}
CATCH_ALL(e) {
    THROW(new Other);
}
END_CATCH_ALL
}
CATCH(Other, e) {
    EXPECT_EQ(Counted::alive, 1) << "the first one is gone";
}
END_CATCH
}
