#pragma once

#include "afxrt/string.h"
