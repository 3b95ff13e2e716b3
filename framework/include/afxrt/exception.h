// The exceptions that the framework throws: objects on the heap (or shared ones), thrown by
// pointer, deleted by whoever catches them.
#pragma once

#include "object.h"

/// The base of all exceptions of the framework.
class AFXRT_API CException : public CObject {
    DECLARE_DYNAMIC(CException)

public:
    CException();
    /// bAutoDelete: whether Delete frees the object (an object made with new) or leaves it.
    explicit CException(BOOL bAutoDelete);

    /// Call this, never delete, when an exception has been dealt with.
    void Delete();
    /// The text that tells a person what happened. FALSE and an empty text when there is none.
    virtual BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError,
                                 PUINT pnHelpContext = NULL) const;
    /// Shows that text in a message box; nIDMessage is the text to show when there is none.
    /// The result is the message box's.
    virtual int ReportError(UINT nType = MB_OK, UINT nIDMessage = 0);

private:
    BOOL m_bAutoDelete;
};

/// The base of the exceptions whose text is a string resource of the framework.
class AFXRT_API CSimpleException : public CException {
    DECLARE_DYNAMIC(CSimpleException)

public:
    CSimpleException() = default;
    explicit CSimpleException(BOOL bAutoDelete) : CException(bAutoDelete) {}
    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError,
                         PUINT pnHelpContext = NULL) const override;

protected:
    /// The number of the string that describes this kind of failure; 0 when there is none.
    virtual UINT MessageId() const { return 0; }
};

#define AFXRT_DECLARE_SIMPLE_EXCEPTION(class_name)                                                 \
    class AFXRT_API class_name : public CSimpleException {                                         \
        DECLARE_DYNAMIC(class_name)                                                                \
                                                                                                   \
    public:                                                                                        \
        class_name() = default;                                                                    \
        explicit class_name(BOOL bAutoDelete) : CSimpleException(bAutoDelete) {}                   \
                                                                                                   \
    protected:                                                                                     \
        UINT MessageId() const override;                                                           \
    }

/// Memory could not be had.
AFXRT_DECLARE_SIMPLE_EXCEPTION(CMemoryException);
/// A resource was not found or could not be made.
AFXRT_DECLARE_SIMPLE_EXCEPTION(CResourceException);
/// The user's action is abandoned; the user has been told already.
AFXRT_DECLARE_SIMPLE_EXCEPTION(CUserException);
/// An unsupported operation was asked for.
AFXRT_DECLARE_SIMPLE_EXCEPTION(CNotSupportedException);
/// An argument is outside what the function takes.
AFXRT_DECLARE_SIMPLE_EXCEPTION(CInvalidArgException);

#undef AFXRT_DECLARE_SIMPLE_EXCEPTION

[[noreturn]] AFXRT_API void AFXAPI AfxThrowMemoryException();
[[noreturn]] AFXRT_API void AFXAPI AfxThrowResourceException();
[[noreturn]] AFXRT_API void AFXAPI AfxThrowUserException();
[[noreturn]] AFXRT_API void AFXAPI AfxThrowNotSupportedException();
[[noreturn]] AFXRT_API void AFXAPI AfxThrowInvalidArgException();

// The documented exception macros, in terms of the language's own exceptions. An exception
// caught by CATCH or CATCH_ALL is deleted at the block's end unless it was thrown on.
namespace afx_internal {
class AFXRT_API CaughtException {
public:
    explicit CaughtException(CException* e) : m_e(e) {}
    ~CaughtException();
    CaughtException(const CaughtException&) = delete;
    CaughtException& operator=(const CaughtException&) = delete;
    void ThrownOn() { m_e = nullptr; }

private:
    CException* m_e;
};
} // namespace afx_internal

#define TRY                                                                                        \
    {                                                                                              \
        try {
#define CATCH(class_name, e)                                                                       \
    }                                                                                              \
    catch (class_name * e) {                                                                       \
        [[maybe_unused]] afx_internal::CaughtException afxCaught(e);
#define AND_CATCH(class_name, e) CATCH(class_name, e)
#define CATCH_ALL(e)             CATCH(CException, e)
#define AND_CATCH_ALL(e)         CATCH(CException, e)
#define END_CATCH                                                                                  \
    }                                                                                              \
    }
#define END_CATCH_ALL END_CATCH
#define THROW(e)      throw e
#define THROW_LAST()  (afxCaught.ThrownOn(), throw)
