// The user presses Browse: the host asks for a file, and the chosen name comes back.
#include "cuadros/frame/PideFichero.h"

#include "OtraAplicacion.h"
#include "kit/app/RecordingApp.h"
#include "kit/kit.h"

namespace {

constexpr UINT TituloAbrir = 61440;

using Pregunta = BOOL (*)(CString&, CDocTemplate**, int);

/// What the host is asked, beside the arguments that are handed through.
struct Llamada {
    DWORD opciones;
    BOOL abrir;
};

/// Asks with `pregunta` for a file of the kind `clase` and expects `llamada` of the host.
void Pide(Pregunta pregunta, CDocTemplate** plantilla, int clase, Llamada llamada,
          kit::Where donde = kit::Where::current()) {
    const testing::ScopedTrace traza(donde.file_name(), static_cast<int>(donde.line()), "asked");
    CString nombre(L"before.dat");
    // As the host gives it: neither checked nor put in quotes.
    kit::app.answerFilePrompt(L"C:\\two words\\after.dat b.dat");
    EXPECT_TRUE(pregunta(nombre, plantilla, clase));
    EXPECT_EQ(nombre, L"C:\\two words\\after.dat b.dat");

    const auto llamadas = kit::app.takeFilePrompts();
    ASSERT_EQ(llamadas.size(), 1U);
    EXPECT_EQ(llamadas[0].name, &nombre);
    EXPECT_EQ(llamadas[0].nameBefore, L"before.dat");
    EXPECT_EQ(llamadas[0].title, TituloAbrir);
    EXPECT_EQ(llamadas[0].flags, llamada.opciones);
    EXPECT_EQ(llamadas[0].open, llamada.abrir);
    EXPECT_EQ(llamadas[0].documentTemplate, plantilla);
    EXPECT_EQ(llamadas[0].kind, clase);
    EXPECT_EQ(llamadas[0].reserved, nullptr);
}

constexpr Llamada DeAbrir{0x1004, 1};
constexpr Llamada DeGuardar{0x2002, 0};
constexpr Llamada DeVarios{0x81204, 1};

} // namespace

TEST(PideFichero, HandsOverTheCallersOwnNameAndTemplateAndKind) {
    CDocTemplate* plantilla = nullptr;
    Pide(Cuadros::PideFicheroAbrir, &plantilla, 32, DeAbrir);
    Pide(Cuadros::PideFicheroGuardar, &plantilla, 16, DeGuardar);
    Pide(Cuadros::PideVariosFicheros, &plantilla, 16, DeVarios);
}

TEST(PideFichero, OfNoTemplateAndNoKindInParticular) {
    Pide([](CString& nombre, CDocTemplate** plantilla,
            int) { return Cuadros::PideFicheroAbrir(nombre, plantilla); },
         nullptr, 0, DeAbrir);
    Pide([](CString& nombre, CDocTemplate** plantilla,
            int) { return Cuadros::PideFicheroGuardar(nombre, plantilla); },
         nullptr, 0, DeGuardar);
    Pide([](CString& nombre, CDocTemplate** plantilla,
            int) { return Cuadros::PideVariosFicheros(nombre, plantilla); },
         nullptr, 0, DeVarios);
}

TEST(PideFichero, CancelledLeavesTheName) {
    CString nombre(L"typed.dat");
    kit::app.cancelFilePrompt();
    EXPECT_FALSE(Cuadros::PideFicheroAbrir(nombre, nullptr));
    EXPECT_EQ(nombre, L"typed.dat");
}

TEST(PideFichero, HostWithoutAPromptAnswersAsCancelled) {
    CString nombre(L"typed.dat");
    // Made while the host has its application object, so that it does not take its place.
    CWinApp sinPeticion;
    {
        const OtraAplicacion otra(&sinPeticion);
        EXPECT_FALSE(Cuadros::PideFicheroAbrir(nombre, nullptr));
        EXPECT_FALSE(Cuadros::PideFicheroGuardar(nombre, nullptr));
        EXPECT_FALSE(Cuadros::PideVariosFicheros(nombre, nullptr));
    }
    {
        const OtraAplicacion ninguna(nullptr);
        EXPECT_FALSE(Cuadros::PideFicheroAbrir(nombre, nullptr));
    }
    EXPECT_EQ(nombre, L"typed.dat");
}
