// The test program's side: reading the diary.
#pragma once

#include <afxwin.h>

#include <ostream>
#include <string>
#include <vector>

/// One entry of the diary: what happened, and which state and application object were current.
struct DiaryEntry {
    std::string what;
    AFX_MODULE_STATE* state;
    CWinApp* app;
    bool operator==(const DiaryEntry&) const = default;
};

std::ostream& operator<<(std::ostream& out, const DiaryEntry& entry);

/// Returns the diary's entries and begins an empty one.
std::vector<DiaryEntry> TakeDiary();

/// What happened, without the states.
std::vector<std::string> Events(const std::vector<DiaryEntry>& diary);
