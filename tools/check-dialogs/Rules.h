#pragma once

#include "Dialog.h"
#include "Ids.h"
#include "Report.h"

// Captions: every input has a name, every caption a mnemonic of its own and enough room.
void checkMnemonics(const Dialog& dialog, Report& report);
void checkNames(const Dialog& dialog, Report& report);
void checkRoom(const Dialog& dialog, Report& report);

// Layout: where controls are, and how large.
void checkPlaces(const Dialog& dialog, Report& report);
void checkMargins(const Dialog& dialog, Report& report);
void checkOverlaps(const Dialog& dialog, Report& report);
void checkPushButtons(const Dialog& dialog, Report& report);

// Order: the tab order is the reading order; OK is the default button, Cancel follows it.
void checkReadingOrder(const Dialog& dialog, Report& report);
void checkClosingButtons(const Dialog& dialog, Report& report);

// Styles that the dialogs' code relies on.
void checkRadioGroups(const Dialog& dialog, Report& report);
void checkStyles(const Dialog& dialog, Report& report);

// Numbers: those that the code uses and those in the binaries are the same.
void checkControlIds(const Dialog& dialog, const DialogIds& ids, Report& report);
void checkInitialItems(const Dialog& dialog, HMODULE language, Report& report);
void checkTemplates(HMODULE language, const Ids& ids, Report& report);
void checkStrings(HMODULE language, const Ids& ids, Report& report);
void checkIcons(HMODULE language, HMODULE library, const Ids& ids, Report& report);

// Modules: each says its version; the language file has one language.
void checkVersions(HMODULE language, HMODULE library, Report& report);
void checkLanguage(HMODULE language, Report& report);

// Sources: faults that the resource compiler passes over in silence.
void checkFragments(const std::wstring& folder, Report& report);
