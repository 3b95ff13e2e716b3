// The user presses Browse: the host asks for a file, and the chosen name comes back.
#include "cuadros/frame/PideFichero.h"

#include "kit/app/RecordingApp.h"
#include "kit/kit.h"

#include <utility>

namespace {

constexpr UINT TituloAbrir = 61440;

/// For its life the host's application object is another one, or none.
class OtraAplicacion {
public:
    explicit OtraAplicacion(CWinApp* otra)
        : m_Antes(std::exchange(AfxGetModuleState()->m_pCurrentWinApp, otra)) {}
    ~OtraAplicacion() { AfxGetModuleState()->m_pCurrentWinApp = m_Antes; }

private:
    CWinApp* m_Antes;
};

} // namespace

TEST(PideFichero, ToOpenHandsOverTheCallersOwnNameAndTemplate) {
    CString nombre(L"before.dat");
    CDocTemplate* plantilla = nullptr;
    kit::app.answerFilePrompt(L"C:\\two words\\after.dat");
    EXPECT_TRUE(Cuadros::PideFicheroAbrir(nombre, &plantilla, 32));
    // As the host gave it: neither checked nor put in quotes.
    EXPECT_EQ(nombre, L"C:\\two words\\after.dat");

    const auto llamadas = kit::app.takeFilePrompts();
    ASSERT_EQ(llamadas.size(), 1U);
    EXPECT_EQ(llamadas[0].name, &nombre);
    EXPECT_EQ(llamadas[0].nameBefore, L"before.dat");
    EXPECT_EQ(llamadas[0].title, TituloAbrir);
    EXPECT_EQ(llamadas[0].flags, 0x1004U);
    EXPECT_EQ(llamadas[0].open, 1);
    EXPECT_EQ(llamadas[0].documentTemplate, &plantilla);
    EXPECT_EQ(llamadas[0].kind, 32);
    EXPECT_EQ(llamadas[0].reserved, nullptr);
}

TEST(PideFichero, ToSaveHasItsOwnFlagsAndTheTitleOfOpening) {
    CString nombre;
    kit::app.answerFilePrompt(L"new.dat");
    EXPECT_TRUE(Cuadros::PideFicheroGuardar(nombre, nullptr));
    EXPECT_EQ(nombre, L"new.dat");

    const auto llamadas = kit::app.takeFilePrompts();
    ASSERT_EQ(llamadas.size(), 1U);
    EXPECT_EQ(llamadas[0].title, TituloAbrir);
    EXPECT_EQ(llamadas[0].flags, 0x2002U);
    EXPECT_EQ(llamadas[0].open, 0);
    EXPECT_EQ(llamadas[0].documentTemplate, nullptr);
    EXPECT_EQ(llamadas[0].kind, 0);
}

TEST(PideFichero, OfSeveralTakesTheLineOfNames) {
    CString nombres;
    CDocTemplate* plantilla = nullptr;
    kit::app.answerFilePrompt(L"a.dat \"two words.dat\"");
    EXPECT_TRUE(Cuadros::PideVariosFicheros(nombres, &plantilla, 16));
    EXPECT_EQ(nombres, L"a.dat \"two words.dat\"");

    const auto llamadas = kit::app.takeFilePrompts();
    ASSERT_EQ(llamadas.size(), 1U);
    EXPECT_EQ(llamadas[0].flags, 0x81204U);
    EXPECT_EQ(llamadas[0].open, 1);
    EXPECT_EQ(llamadas[0].kind, 16);
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
