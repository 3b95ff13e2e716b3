// The driver of real dialogs, without a test framework.
#pragma once

#include "kit/driver/Dialog.h"
#include "kit/driver/Failure.h"
#include "kit/driver/Handles.h"
#include "kit/driver/Input.h"
#include "kit/driver/MessageDialog.h"
#include "kit/driver/Process.h"
#include "kit/driver/Script.h"
#include "kit/driver/Watchdog.h"
#include "kit/picture/Picture.h"
#include "kit/picture/WindowTree.h"
