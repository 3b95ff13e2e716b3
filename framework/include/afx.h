// Objects, exceptions and strings.
#pragma once

#include "afxrt/config.h"
#include "afxrt/exception.h"
#include "afxrt/object.h"
#include "afxrt/string.h"

#include <tchar.h>

#ifndef ASSERT
#ifdef _DEBUG
#include <cassert>
#define ASSERT(f) assert(f)
#define VERIFY(f) ASSERT(f)
#else
#define ASSERT(f) ((void)0)
#define VERIFY(f) ((void)(f))
#endif
#define ASSERT_VALID(pOb)                 ASSERT((pOb) != nullptr)
#define ASSERT_KINDOF(class_name, object) ASSERT((object)->IsKindOf(RUNTIME_CLASS(class_name)))
#endif

#define TRACE(...) ((void)0)
