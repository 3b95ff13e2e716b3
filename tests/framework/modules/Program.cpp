#include "Program.h"

#include <utility>

namespace {

std::vector<DiaryEntry>& Diary() {
    static std::vector<DiaryEntry> diary;
    return diary;
}

} // namespace

extern "C" __declspec(dllexport) void NoteInDiary(const char* what) {
    Diary().push_back({what, AfxGetModuleState(), AfxGetApp()});
}

std::ostream& operator<<(std::ostream& out, const DiaryEntry& entry) {
    return out << entry.what << " (state " << entry.state << ", app " << entry.app << ')';
}

std::vector<DiaryEntry> TakeDiary() {
    return std::exchange(Diary(), {});
}

std::vector<std::string> Events(const std::vector<DiaryEntry>& diary) {
    std::vector<std::string> events;
    for (const DiaryEntry& entry : diary)
        events.push_back(entry.what);
    return events;
}
