#pragma once

#include "kit/picture/Text.h"

#include <afxwin.h>

#include <cotana/aplicacion/Aplicacion.h>

#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace kit {

/// One request for help: the context and the command that the application object got.
struct HelpRequest {
    DWORD_PTR context;
    UINT command;
    bool operator==(const HelpRequest&) const = default;
};

/// One call of the application's file prompt, with all that was handed over.
struct FilePrompt {
    CString* name;           ///< The caller's own object.
    std::wstring nameBefore; ///< What it held.
    UINT title;
    DWORD flags;
    BOOL open;
    CDocTemplate** documentTemplate;
    int kind;
    void* reserved;
    HWND active; ///< The active window at the time.
};

/// The host application of a test program: asks nobody, but answers as the test has said, and
/// keeps what it was asked.
///
/// A program that links `kit_app` has one, kit::app. Before each test it forgets all; after
/// each test an answer that nobody asked for is a failure. A prompt without an answer is a
/// failure at once, and counts as cancelled.
class RecordingApp : public Cotana::CAplicacion {
public:
    RecordingApp();

    /// The next file prompt is confirmed with this name (or these, as the dialog joins them).
    void answerFilePrompt(Text names);
    /// The next file prompt is cancelled.
    void cancelFilePrompt();

    /// What was asked since the last call.
    std::vector<HelpRequest> takeHelpRequests();
    std::vector<FilePrompt> takeFilePrompts();

    /// The template of the document in which the user works.
    void setDocumentTemplate(CDocTemplate* current) { documentTemplate_ = current; }

    /// Forgets records and answers; the help system is HTML Help again.
    void forget();

    std::size_t answersLeft() const { return answers_.size(); }

    void HtmlHelp(DWORD_PTR context, UINT command) override;
    BOOL PideFichero(CString& nombre, UINT titulo, DWORD opciones, BOOL abrir,
                     CDocTemplate** plantilla, int clase, void* reservado) override;
    CDocTemplate* PlantillaActual() const override { return documentTemplate_; }

private:
    std::deque<std::optional<std::wstring>> answers_; // nothing: cancelled
    std::vector<FilePrompt> filePrompts_;
    std::vector<HelpRequest> helpRequests_;
    CDocTemplate* documentTemplate_ = nullptr;
};

extern RecordingApp app;

} // namespace kit
