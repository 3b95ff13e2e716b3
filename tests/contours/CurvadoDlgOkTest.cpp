// A surveyor takes OK. What he typed is in the record first; then it is checked, one thing after
// the other. The first thing that is wrong is said and the dialog waits, or it closes.
#include "contours/Curvado.h"

#include <cmath>
#include <utility>

namespace {

class CurvadoDlgOk : public Curvado {
protected:
    using Textos = std::vector<std::pair<int, const wchar_t*>>;

    /// Types these texts and takes OK, which refuses them with this message.
    void Rechaza(UINT mensaje, const Textos& textos, kit::Where donde = kit::Where::current()) {
        const testing::ScopedTrace traza(donde.file_name(), static_cast<int>(donde.line()),
                                         Descripcion(textos));
        const auto resultado = Abre(
            {mensaje},
            [&](kit::Dialog& dialogo) {
                for (const auto& [control, texto] : textos)
                    dialogo.type(control, texto, donde);
                dialogo.press(IDOK, donde);
                EXPECT_TRUE(IsWindowVisible(dialogo.handle()));
                dialogo.press(IDCANCEL, donde);
            },
            donde);
        EXPECT_EQ(resultado, IDCANCEL);
    }

    /// Types these texts and takes OK, which closes the dialog.
    void Acepta(const Textos& textos, kit::Where donde = kit::Where::current()) {
        const testing::ScopedTrace traza(donde.file_name(), static_cast<int>(donde.line()),
                                         Descripcion(textos));
        const auto resultado = Abre(
            [&](kit::Dialog& dialogo) {
                for (const auto& [control, texto] : textos)
                    dialogo.type(control, texto, donde);
                dialogo.press(IDOK, donde);
            },
            donde);
        EXPECT_EQ(resultado, IDOK);
    }

    /// What is shown of the texts where a test fails.
    static std::string Descripcion(const Textos& textos) {
        std::string descripcion = "typed:";
        for (const auto& [control, texto] : textos)
            descripcion += ' ' + std::to_string(control) + ' ' + kit::inQuotes(texto);
        return descripcion;
    }
};

// What comes back.

TEST_F(CurvadoDlgOk, LeavesEverythingInTheRecord) {
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        dialogo.choose(TipoSuavizado, 1); // shows the record anew, with 15 digits
        dialogo.type(Escala, L"2500");
        dialogo.type(Equidistancia, L"0.5");
        dialogo.type(EquidistanciaMaestra, L"1e1");
        dialogo.type(TextoValor1, L"1.75");
        dialogo.type(TextoValor2, L"80");
        dialogo.type(TextoEntero, L"-2147483648");
        dialogo.type(CotaMinima, L"-3.141592653589793");
        dialogo.type(CotaMaxima, L"333");
        dialogo.type(FicheroLimite, L"C:\\other.dxf");
        dialogo.type(NivelSuavizado, L"9");
        dialogo.type(CurvasARespetar1, L"respect");
        dialogo.type(CurvasARespetar2, L"");
        for (const int casilla : {OpcionTexto, RangoCota, OpcionSuavizado, Opcion1, RespetarCurvas})
            dialogo.click(casilla);
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    CDataCurvado esperado;
    esperado.m_ValorAvanzado1 = 0.5; // of no control here, like the codes
    esperado.m_ValorAvanzado2 = 1.5;
    esperado.m_AvanzadoPorEscala = FALSE;
    esperado.m_TextoCurvas = TRUE;
    esperado.m_Limite = TRUE;
    esperado.m_OpcionSuavizado = FALSE;
    esperado.m_Opcion1 = TRUE;
    esperado.m_RespetarCurvas = FALSE;
    esperado.m_RangoCota = FALSE;
    esperado.m_OpcionTexto = TRUE;
    esperado.m_CodigoCurvas1 = L"C1";
    esperado.m_CodigoCurvas2 = L"C2";
    esperado.m_CodigoCurvas3 = L"C3";
    esperado.m_CodigoCurvas4 = L"C4";
    esperado.m_CodigoCurvas5 = L"C5";
    esperado.m_CurvasARespetar1 = L"respect";
    esperado.m_FicheroLimite = L"C:\\other.dxf";
    esperado.m_Escala = 2500;
    esperado.m_TextoValor1 = 1.75;
    esperado.m_Equidistancia = 0.5;
    esperado.m_EquidistanciaMaestra = 10;
    esperado.m_TextoValor2 = 80;
    esperado.m_CotaMinima = -3.141592653589793;
    esperado.m_CotaMaxima = 333;
    esperado.m_TextoEntero = -2147483647 - 1;
    esperado.m_NivelSuavizado = 9;
    esperado.m_TipoSuavizado = 1;
    EXPECT_EQ(Campos(data), Campos(esperado));
}

TEST_F(CurvadoDlgOk, UntouchedRecordComesBackAsItWas) {
    const auto antes = Campos(data);
    Acepta({});
    EXPECT_EQ(Campos(data), antes);
}

TEST_F(CurvadoDlgOk, RecordThatTheHostHasJustMadeIsTaken) {
    data = {};
    EXPECT_EQ(Abre([](kit::Dialog& dialogo) { dialogo.press(IDOK); }), IDOK);
    EXPECT_EQ(Campos(data), Campos(CDataCurvado()));
    // Its values pass the checks of the labels and of the smoothing level as well.
    data.m_TextoCurvas = TRUE;
    data.m_TipoSuavizado = 2;
    EXPECT_EQ(Abre([](kit::Dialog& dialogo) { dialogo.press(IDOK); }), IDOK);
}

TEST_F(CurvadoDlgOk, DisabledControlsStillComeBack) {
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        dialogo.type(TextoValor1, L"3");
        dialogo.type(FicheroLimite, L"typed");
        dialogo.type(NivelSuavizado, L"8");
        dialogo.click(TextoCurvas);
        dialogo.click(Limite);
        dialogo.choose(TipoSuavizado, 0);
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(data.m_TextoValor1, 3);
    EXPECT_EQ(data.m_FicheroLimite, L"typed");
    EXPECT_EQ(data.m_NivelSuavizado, 8);
}

TEST_F(CurvadoDlgOk, ReadsTheBoxesTheTextsTheScaleAndThenTheOtherNumbers) {
    const std::vector<int> orden = {
        TextoCurvas, Limite,        OpcionSuavizado,      Opcion1,          RespetarCurvas,
        RangoCota,   OpcionTexto,   CurvasARespetar1,     CurvasARespetar2, FicheroLimite,
        Escala,      Equidistancia, EquidistanciaMaestra, TextoValor2,      TextoValor1,
        CotaMinima,  TextoEntero,   CotaMaxima,           NivelSuavizado};
    std::vector<int> dosVeces = orden;
    dosVeces.insert(dosVeces.end(), orden.begin(), orden.end());
    Abre([&](kit::Dialog& dialogo) { EXPECT_EQ(LeidosPorOk(dialogo, orden), dosVeces); });
}

TEST_F(CurvadoDlgOk, TypeIsStoredAfterTheExchange) {
    auto desconfiado = Dialogo<CDesconfiado<CCurvadoDlg>>();
    desconfiado.rechazado = 7; // the first of OK
    int tipoEntonces = -1;
    desconfiado.alRechazar = [&] { tipoEntonces = data.m_TipoSuavizado; };
    Abre(desconfiado, [](kit::Dialog& dialogo) {
        dialogo.choose(TipoSuavizado, 1);
        dialogo.press(IDOK);
    });
    EXPECT_EQ(tipoEntonces, 2);
    EXPECT_EQ(data.m_TipoSuavizado, 1);
}

TEST_F(CurvadoDlgOk, TakesWhatIsVeryLarge) {
    data.m_TipoSuavizado = 1;
    CDataCurvado esperado = data;
    const std::wstring largo(400, L'n');
    Acepta({{Escala, L"4294967295"},
            {Equidistancia, L"1e299"},
            {EquidistanciaMaestra, L"1e300"},
            {TextoValor1, L"1e300"},
            {TextoValor2, L"1e300"},
            {TextoEntero, L"2147483647"},
            {CotaMinima, L"-1e300"},
            {CotaMaxima, L"1e300"},
            {FicheroLimite, largo.c_str()},
            {NivelSuavizado, L"2147483647"},
            {CurvasARespetar1, largo.c_str()},
            {CurvasARespetar2, largo.c_str()}});
    esperado.m_Escala = 4294967295;
    esperado.m_Equidistancia = 1e299;
    for (const auto campo : {&CDataCurvado::m_EquidistanciaMaestra, &CDataCurvado::m_TextoValor1,
                             &CDataCurvado::m_TextoValor2, &CDataCurvado::m_CotaMaxima})
        esperado.*campo = 1e300;
    esperado.m_CotaMinima = -1e300;
    for (const auto campo : {&CDataCurvado::m_TextoEntero, &CDataCurvado::m_NivelSuavizado})
        esperado.*campo = 2147483647;
    for (const auto campo : {&CDataCurvado::m_FicheroLimite, &CDataCurvado::m_CurvasARespetar1,
                             &CDataCurvado::m_CurvasARespetar2})
        esperado.*campo = largo.c_str();
    EXPECT_EQ(Campos(data), Campos(esperado));
}

// The checks, each with its limits.

TEST_F(CurvadoDlgOk, ScaleIsNot0) {
    Rechaza(19078, {{Escala, L"0"}});
    Rechaza(19078, {{Escala, L"000"}});
    Acepta({{Escala, L"1"}});
    Acepta({{Escala, L"4294967295"}});
}

TEST_F(CurvadoDlgOk, FirstValueOfTheLabelsIsPositive) {
    Rechaza(15037, {{TextoValor1, L"0"}});
    Rechaza(15037, {{TextoValor1, L"-0.0"}});
    Rechaza(15037, {{TextoValor1, L"-1e-300"}});
    Rechaza(15037, {{TextoValor1, L"-2"}});
    // No tolerance here.
    Acepta({{TextoValor1, L"1e-300"}});
}

TEST_F(CurvadoDlgOk, SecondValueOfTheLabelsIsPositive) {
    Rechaza(20008, {{TextoValor2, L"0"}});
    Rechaza(20008, {{TextoValor2, L"-1e-300"}});
    Rechaza(20008, {{TextoValor2, L"-2"}});
    Acepta({{TextoValor2, L"1e-300"}});
}

TEST_F(CurvadoDlgOk, ValuesOfTheLabelsCountOnlyWhereThereAreLabels) {
    data.m_TextoCurvas = FALSE;
    data.m_TextoValor1 = -1;
    data.m_TextoValor2 = 0;
    Acepta({});
    EXPECT_EQ(data.m_TextoValor1, -1);
    EXPECT_EQ(data.m_TextoValor2, 0);
}

TEST_F(CurvadoDlgOk, IntegerOfTheLabelsHasNoLimits) {
    for (const wchar_t* const texto : {L"0", L"-1", L"2147483647"})
        Acepta({{TextoEntero, texto}});
}

TEST_F(CurvadoDlgOk, IntervalIsLessThanTheMasterInterval) {
    Rechaza(19076, {{Equidistancia, L"5"}, {EquidistanciaMaestra, L"5"}});
    Rechaza(19076, {{Equidistancia, L"5"}, {EquidistanciaMaestra, L"4.9999999"}});
    Rechaza(19076, {{Equidistancia, L"7"}, {EquidistanciaMaestra, L"5"}});
    // No tolerance here, and no multiple either.
    Acepta({{Equidistancia, L"5"}, {EquidistanciaMaestra, L"5.00000001"}});
    Acepta({{Equidistancia, L"5"}, {EquidistanciaMaestra, L"7"}});
}

TEST_F(CurvadoDlgOk, IntervalsArePositiveBeyondTheTolerance) {
    Rechaza(19076, {{Equidistancia, L"0"}});
    Rechaza(19076, {{Equidistancia, L"-5"}});
    Rechaza(19076, {{Equidistancia, L"5e-8"}});
    Rechaza(19076, {{Equidistancia, L"0.00000005"}});
    Rechaza(19076, {{Equidistancia, L"1e-7"}});
    Acepta({{Equidistancia, L"1.0000001e-7"}});

    Rechaza(19076, {{EquidistanciaMaestra, L"0"}});
    Rechaza(19076, {{EquidistanciaMaestra, L"-25"}});
    Rechaza(19076, {{Equidistancia, L"-30"}, {EquidistanciaMaestra, L"-25"}});
    Rechaza(19076, {{Equidistancia, L"5e-8"}, {EquidistanciaMaestra, L"1e-7"}});
    Rechaza(19076, {{Equidistancia, L"1e-7"}, {EquidistanciaMaestra, L"1.0000001e-7"}});
    Acepta({{Equidistancia, L"1.0000001e-7"}, {EquidistanciaMaestra, L"1.0000002e-7"}});
}

TEST_F(CurvadoDlgOk, BoundaryHasAFile) {
    Rechaza(20004, {{FicheroLimite, L""}});
    // Neither what the name looks like nor whether there is such a file is asked.
    Acepta({{FicheroLimite, L" "}});
    Acepta({{FicheroLimite, L"Q:\\no such folder\\no such file"}});
}

TEST_F(CurvadoDlgOk, FileCountsOnlyWhereThereIsABoundary) {
    data.m_Limite = FALSE;
    data.m_FicheroLimite.Empty();
    Acepta({});
    EXPECT_TRUE(data.m_FicheroLimite.IsEmpty());
}

TEST_F(CurvadoDlgOk, LevelIsCheckedForTheThirdTypeOfSmoothingOnly) {
    for (const int tipo : {-1, 0, 1, 2})
        for (const int nivel : {-2147483647, -1, 0, 1, 10, 11, 2147483647}) {
            data.m_TipoSuavizado = tipo;
            data.m_NivelSuavizado = nivel;
            SCOPED_TRACE("type " + std::to_string(tipo) + ", level " + std::to_string(nivel));
            if (tipo == 2 && (nivel < 1 || nivel > 10))
                Rechaza(20024, {});
            else
                Acepta({});
            EXPECT_EQ(data.m_NivelSuavizado, nivel);
            EXPECT_EQ(data.m_TipoSuavizado, tipo);
        }
}

TEST_F(CurvadoDlgOk, LevelOfATypeThatTheListWasGivenIsNotChecked) {
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        const HWND lista = dialogo.control(TipoSuavizado);
        SendMessageW(lista, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"Fourth"));
        dialogo.choose(TipoSuavizado, 3);
        dialogo.type(NivelSuavizado, L"0");
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(data.m_TipoSuavizado, 3);
    EXPECT_EQ(data.m_NivelSuavizado, 0);
}

TEST_F(CurvadoDlgOk, LevelIsCheckedForTheTypeThatIsSelectedNow) {
    data.m_TipoSuavizado = 1;
    data.m_NivelSuavizado = 11;
    const auto resultado = Abre({20024}, [this](kit::Dialog& dialogo) {
        dialogo.choose(TipoSuavizado, 2);
        dialogo.press(IDOK);
        EXPECT_EQ(data.m_TipoSuavizado, 2);
        dialogo.choose(TipoSuavizado, 1);
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(data.m_TipoSuavizado, 1);
}

TEST_F(CurvadoDlgOk, RangeOfElevationsOverlapsTheModelAndIsInOrder) {
    const struct {
        const wchar_t *minima, *maxima;
        bool vale;
    } casos[] = {
        {L"200", L"300", true},      // inside
        {L"150", L"400", true},      // the model itself
        {L"100", L"200", true},      // from below it
        {L"350", L"500", true},      // beyond it
        {L"-10000", L"10000", true}, // all around it
        {L"300", L"300", true},      // one elevation
        {L"150", L"150", true},      // its lowest one
        {L"400", L"400", true},      // its highest one
        {L"100", L"150", true},      // touches it from below
        {L"400", L"500", true},      // touches it from above
        {L"100", L"149.999", false}, // just below it
        {L"400.001", L"500", false}, // just beyond it
        {L"149.9", L"149.9", false},      {L"450", L"500", false}, {L"0", L"0", false},
        {L"200", L"100", false},          // both overlap, in no order
        {L"300", L"299.99999999", false}, // no tolerance here
        {L"500", L"100", false},
    };
    for (const auto& caso : casos) {
        if (caso.vale)
            Acepta({{CotaMinima, caso.minima}, {CotaMaxima, caso.maxima}});
        else
            Rechaza(20029, {{CotaMinima, caso.minima}, {CotaMaxima, caso.maxima}});
    }
}

TEST_F(CurvadoDlgOk, RangeIsCheckedAgainstTheModelInFull) {
    // Not against the two decimals that are shown of it.
    cotaMinimaModelo = -3.141592653589793;
    cotaMaximaModelo = -3.14;
    Acepta({{CotaMinima, L"-4"}, {CotaMaxima, L"-3.141592653589793"}});
    Rechaza(20029, {{CotaMinima, L"-4"}, {CotaMaxima, L"-3.1416"}});
    Acepta({{CotaMinima, L"-3.14"}, {CotaMaxima, L"0"}});
    Rechaza(20029, {{CotaMinima, L"-3.1399"}, {CotaMaxima, L"0"}});
}

TEST_F(CurvadoDlgOk, RangeCountsOnlyWhereItIsAskedFor) {
    data.m_RangoCota = FALSE;
    data.m_CotaMinima = 500;
    data.m_CotaMaxima = -500;
    Acepta({});
    EXPECT_EQ(data.m_CotaMinima, 500);
    EXPECT_EQ(data.m_CotaMaxima, -500);
}

TEST_F(CurvadoDlgOk, ContoursToRespectMayBeEmpty) {
    Acepta({{CurvasARespetar1, L""}, {CurvasARespetar2, L""}});
}

TEST_F(CurvadoDlgOk, ChecksComeInTheirOrder) {
    const auto resultado =
        Abre({19078, 15037, 19076, 20008, 20004, 20024, 20029}, [](kit::Dialog& dialogo) {
            dialogo.type(Escala, L"0");
            dialogo.type(TextoValor1, L"0");
            dialogo.type(Equidistancia, L"30");
            dialogo.type(TextoValor2, L"0");
            dialogo.type(FicheroLimite, L"");
            dialogo.type(NivelSuavizado, L"0");
            dialogo.type(CotaMinima, L"450");
            dialogo.press(IDOK);
            const std::pair<int, const wchar_t*> remedios[] = {
                {Escala, L"1000"},     {TextoValor1, L"2"},       {Equidistancia, L"5"},
                {TextoValor2, L"100"}, {FicheroLimite, L"C:\\b"}, {NivelSuavizado, L"1"},
                {CotaMinima, L"200"}};
            for (const auto& [control, texto] : remedios) {
                dialogo.type(control, texto);
                dialogo.press(IDOK);
            }
        });
    EXPECT_EQ(resultado, IDOK);
}

// What a refusal does.

TEST_F(CurvadoDlgOk, RefusalMovesNoFocus) {
    Abre({19076, 19076}, [](kit::Dialog& dialogo) {
        dialogo.type(Equidistancia, L"0");
        dialogo.focusOn(CotaMaxima);
        dialogo.command(IDOK);
        EXPECT_EQ(dialogo.focus(), CotaMaxima);
        dialogo.focusOn(Opcion1);
        kit::keyboard::press(VK_RETURN);
        EXPECT_EQ(dialogo.focus(), Opcion1);
        dialogo.press(IDCANCEL);
    });
}

TEST_F(CurvadoDlgOk, RefusalLeavesTheRecordWithWhatWasExchanged) {
    CDataCurvado esperado = data;
    esperado.m_Escala = 0;
    esperado.m_Equidistancia = 7.5;
    esperado.m_FicheroLimite = L"typed";
    esperado.m_TipoSuavizado = 1;
    Abre({19078}, [&](kit::Dialog& dialogo) {
        dialogo.type(Escala, L"0");
        dialogo.type(FicheroLimite, L"typed");
        dialogo.choose(TipoSuavizado, 1);
        dialogo.type(Equidistancia, L"7.50");
        dialogo.press(IDOK);
        EXPECT_EQ(Campos(data), Campos(esperado));
        EXPECT_EQ(dialogo.text(Equidistancia), L"7.50");
        EXPECT_EQ(Deshabilitados(dialogo), Controles{});
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(Campos(data), Campos(esperado));
}

TEST_F(CurvadoDlgOk, RefusalIsASingleExchange) {
    auto contador = Dialogo<ConIntercambios<CCurvadoDlg>>();
    Abre(contador, {20029}, [&](kit::Dialog& dialogo) {
        dialogo.type(CotaMinima, L"450");
        contador.Intercambios();
        dialogo.press(IDOK);
        EXPECT_EQ(contador.Intercambios(), "S");
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(contador.Intercambios(), "");
}

// The group that a host may hide.

TEST_F(CurvadoDlgOk, HiddenGroupIsStoredAndChecked) {
    extras = SW_HIDE;
    data.m_NivelSuavizado = 11;
    Rechaza(20024, {});
    EXPECT_EQ(data.m_TipoSuavizado, 2);

    data.m_TipoSuavizado = 7;
    Acepta({});
    EXPECT_EQ(data.m_TipoSuavizado, -1);

    data.m_TipoSuavizado = 2;
    data.m_NivelSuavizado = 10;
    data.m_Opcion1 = TRUE;
    const auto antes = Campos(data);
    Acepta({});
    EXPECT_EQ(Campos(data), antes);
}

TEST_F(CurvadoDlgOk, SelectionOfAHiddenListIsStored) {
    extras = SW_HIDE;
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        SendMessageW(dialogo.control(TipoSuavizado), CB_SETCURSEL, 1, 0);
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(data.m_TipoSuavizado, 1);
}

// Cancel.

TEST_F(CurvadoDlgOk, CancelWithoutAClickKeepsTheRecord) {
    const auto antes = Campos(data);
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        dialogo.type(Equidistancia, L"7");
        dialogo.type(FicheroLimite, L"typed");
        dialogo.type(NivelSuavizado, L"9");
        dialogo.click(Opcion1);
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(resultado, IDCANCEL);
    EXPECT_EQ(Campos(data), antes);
}

TEST_F(CurvadoDlgOk, CancelKeepsWhatWasExchanged) {
    CDataCurvado esperado = data;
    esperado.m_Equidistancia = 7;
    esperado.m_FicheroLimite = L"typed";
    esperado.m_Opcion1 = TRUE;
    esperado.m_RangoCota = FALSE;
    const auto resultado = Abre([](kit::Dialog& dialogo) {
        dialogo.type(Equidistancia, L"7");
        dialogo.type(FicheroLimite, L"typed");
        dialogo.click(Opcion1);
        dialogo.click(RangoCota);
        dialogo.type(Equidistancia, L"8");
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(resultado, IDCANCEL);
    EXPECT_EQ(Campos(data), Campos(esperado));
}

// Texts that are no numbers.

TEST_F(CurvadoDlgOk, BadNumberIsRefusedTwice) {
    const std::pair<int, UINT> numeros[] = {
        {Equidistancia, AFX_IDP_PARSE_REAL}, {EquidistanciaMaestra, AFX_IDP_PARSE_REAL},
        {TextoValor1, AFX_IDP_PARSE_REAL},   {TextoValor2, AFX_IDP_PARSE_REAL},
        {CotaMinima, AFX_IDP_PARSE_REAL},    {CotaMaxima, AFX_IDP_PARSE_REAL},
        {TextoEntero, AFX_IDP_PARSE_INT},    {NivelSuavizado, AFX_IDP_PARSE_INT},
    };
    const auto antes = Campos(data);
    for (const auto& [control, aviso] : numeros)
        for (const wchar_t* const texto : {L"", L"many", L"5 m"}) {
            const auto resultado = Abre({aviso, aviso}, [&](kit::Dialog& dialogo) {
                dialogo.type(control, texto);
                dialogo.press(IDOK);
                EXPECT_EQ(dialogo.focus(), control);
                EXPECT_EQ(dialogo.text(control), texto);
                dialogo.press(IDCANCEL);
            });
            EXPECT_EQ(resultado, IDCANCEL);
            EXPECT_EQ(Campos(data), antes) << control << ' ' << kit::inQuotes(texto);
        }
}

TEST_F(CurvadoDlgOk, BadNumberInADisabledEditIsRefusedTwiceToo) {
    // By the click, by the key in the scale, twice by OK, and by the click that enables the edit.
    const auto resultado = Abre({AFX_IDP_PARSE_REAL, AFX_IDP_PARSE_REAL, AFX_IDP_PARSE_REAL,
                                 AFX_IDP_PARSE_REAL, AFX_IDP_PARSE_REAL},
                                [](kit::Dialog& dialogo) {
                                    dialogo.type(TextoValor1, L"many");
                                    dialogo.click(TextoCurvas);
                                    EXPECT_FALSE(dialogo.enabled(TextoValor1));
                                    dialogo.append(Escala, L"0");
                                    EXPECT_EQ(dialogo.focus(), Escala);
                                    dialogo.command(IDOK);
                                    EXPECT_EQ(dialogo.focus(), Escala);
                                    EXPECT_EQ(dialogo.text(TextoValor1), L"many");
                                    dialogo.click(TextoCurvas);
                                    EXPECT_EQ(dialogo.focus(), TextoCurvas);
                                    dialogo.type(TextoValor1, L"3");
                                    dialogo.press(IDOK);
                                });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(data.m_TextoValor1, 3);
}

TEST_F(CurvadoDlgOk, NumberOfTheRecordThatIsNotFiniteIsRefusedUntilItIsTypedOver) {
    for (const double numero : {HUGE_VAL, std::nan("")}) {
        data.m_TextoValor2 = numero;
        kit::Script guion;
        // By each of the five exchanges of the opening.
        for (int i = 0; i < 5; ++i)
            guion.expectMessage(AfxGetAppName(), TextoDe(AFX_IDP_PARSE_REAL), MB_ICONEXCLAMATION)
                .buttons(MB_OK);
        guion.onDialog([](kit::Dialog& dialogo) {
            dialogo.press(IDOK);
            EXPECT_EQ(dialogo.focus(), TextoValor2);
            dialogo.type(TextoValor2, L"100");
            dialogo.press(IDOK);
        });
        for (int i = 0; i < 2; ++i) // by OK
            Espera(guion, AFX_IDP_PARSE_REAL);
        EXPECT_EQ(guion.run([this] { return Dialogo().DoModal(); }), IDOK);
        EXPECT_EQ(data.m_TextoValor2, 100);
    }
}

TEST_F(CurvadoDlgOk, BadScaleIsRefusedAtItsKeyAndTwiceByOk) {
    const auto resultado = Abre({AFX_IDP_PARSE_UINT, AFX_IDP_PARSE_UINT, AFX_IDP_PARSE_UINT},
                                [](kit::Dialog& dialogo) {
                                    dialogo.type(Escala, L"");
                                    dialogo.press(IDOK);
                                    EXPECT_EQ(dialogo.focus(), Escala);
                                    dialogo.press(IDCANCEL);
                                });
    EXPECT_EQ(resultado, IDCANCEL);
    EXPECT_EQ(data.m_Escala, 1000U);
}

TEST_F(CurvadoDlgOk, BadNumberKeepsWhatIsExchangedAfterItAndStoresTheTypeAllTheSame) {
    CDataCurvado esperado = data;
    esperado.m_Equidistancia = 7;
    esperado.m_FicheroLimite = L"typed";
    esperado.m_TipoSuavizado = 1;
    Abre({AFX_IDP_PARSE_REAL, AFX_IDP_PARSE_REAL}, [](kit::Dialog& dialogo) {
        dialogo.choose(TipoSuavizado, 1);
        dialogo.type(Equidistancia, L"7"); // exchanged before
        dialogo.type(FicheroLimite, L"typed");
        dialogo.type(EquidistanciaMaestra, L"many");
        dialogo.type(CotaMinima, L"1"); // and after it
        dialogo.press(IDOK);
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(Campos(data), Campos(esperado));
}

TEST_F(CurvadoDlgOk, BadNumberIsFollowedByTheChecksOfTheValuesBefore) {
    data.m_TextoValor2 = 0;
    Abre({AFX_IDP_PARSE_REAL, 20008}, [](kit::Dialog& dialogo) {
        dialogo.type(TextoValor2, L"100 mm");
        dialogo.press(IDOK);
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(data.m_TextoValor2, 0);
}

TEST_F(CurvadoDlgOk, CorrectedNumberIsTaken) {
    const auto resultado = Abre({AFX_IDP_PARSE_REAL, AFX_IDP_PARSE_REAL}, [](kit::Dialog& dialogo) {
        dialogo.type(CotaMinima, L"low");
        dialogo.press(IDOK);
        dialogo.type(CotaMinima, L"170");
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(data.m_CotaMinima, 170);
}

TEST_F(CurvadoDlgOk, RefusedExchangeIsFollowedByTheChecks) {
    auto desconfiado = Dialogo<CDesconfiado<CCurvadoDlg>>();
    desconfiado.rechazado = 6;
    const auto resultado =
        Abre(desconfiado, {IDS_SEGUNDO_VALOR_NO_POSITIVO}, [this](kit::Dialog& dialogo) {
            dialogo.type(TextoValor2, L"0");
            dialogo.press(IDOK);
            EXPECT_EQ(data.m_TextoValor2, 0);
            dialogo.type(TextoValor2, L"7");
            dialogo.press(IDOK);
        });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(data.m_TextoValor2, 7);
}

TEST_F(CurvadoDlgOk, RefusedLastExchangeKeepsTheDialogOpen) {
    auto desconfiado = Dialogo<CDesconfiado<CCurvadoDlg>>();
    desconfiado.rechazado = 7;
    const auto resultado = Abre(desconfiado, [](kit::Dialog& dialogo) {
        dialogo.press(IDOK);
        EXPECT_TRUE(IsWindowVisible(dialogo.handle()));
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(resultado, IDCANCEL);
}

} // namespace
