// A surveyor is about to clean a terrain model. Whichever of the two ways he takes, he types two
// numbers, sees them with two decimals, and finds them in the record after OK. Nothing that he
// types is refused.
#include "Limpieza.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <type_traits>
#include <vector>

namespace {

template <class Dlg>
using ValoresLimpieza = ConLimpieza<Dlg>;
using Dialogos = testing::Types<Cotana::CLimpiarRelieveDlg, Cotana::CLimpiarRelieveRangoZDlg>;
TYPED_TEST_SUITE(ValoresLimpieza, Dialogos, );

// What the user sees first.

TYPED_TEST(ValoresLimpieza, AreShownWithTwoDecimals) {
    this->Abre([](kit::Dialog& dialogo) {
        EXPECT_EQ(dialogo.text(TestFixture::A), L"12.50");
        EXPECT_EQ(dialogo.text(TestFixture::B), L"-0.25");
        dialogo.press(IDCANCEL);
    });
}

// OK.

TYPED_TEST(ValoresLimpieza, OkLeavesThemInTheRecord) {
    this->Acepta(L"3.75", L"1e2");
    EXPECT_EQ(this->data.m_ValorA, 3.75);
    EXPECT_EQ(this->data.m_ValorB, 100);
}

TYPED_TEST(ValoresLimpieza, TypedDecimalsAreAllTaken) {
    this->Acepta(L"2.345678", L"-0.001");
    EXPECT_EQ(this->data.m_ValorA, 2.345678);
    EXPECT_EQ(this->data.m_ValorB, -0.001);
}

TYPED_TEST(ValoresLimpieza, UntouchedOnesComeBackWithTwoDecimals) {
    this->data.m_ValorA = 2.345678;
    this->data.m_ValorB = -1234567.891;
    const auto resultado = this->Abre([](kit::Dialog& dialogo) { dialogo.press(IDOK); });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(this->data.m_ValorA, 2.35);
    EXPECT_EQ(this->data.m_ValorB, -1234567.89);
}

TYPED_TEST(ValoresLimpieza, LargestNumbersComeBack) {
    this->data.m_ValorA = 1e300;
    this->data.m_ValorB = -1e300;
    const auto resultado = this->Abre([](kit::Dialog& dialogo) { dialogo.press(IDOK); });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(this->data.m_ValorA, 1e300);
    EXPECT_EQ(this->data.m_ValorB, -1e300);
}

TYPED_TEST(ValoresLimpieza, NumberThatIsNotFiniteComesBackAsOneThatIs) {
    this->data.m_ValorA = HUGE_VAL;
    this->data.m_ValorB = std::nan("");
    const auto resultado = this->Abre([](kit::Dialog& dialogo) { dialogo.press(IDOK); });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_TRUE(std::isfinite(this->data.m_ValorA));
    EXPECT_TRUE(std::isfinite(this->data.m_ValorB));
}

TYPED_TEST(ValoresLimpieza, LettersAndNothingAreZero) {
    this->Acepta(L"wide", L"");
    EXPECT_EQ(this->data.m_ValorA, 0);
    EXPECT_EQ(this->data.m_ValorB, 0);
}

TYPED_TEST(ValoresLimpieza, TextIsReadAsFarAsItIsANumber) {
    this->Acepta(L"2,5", L"  7.5 m");
    EXPECT_EQ(this->data.m_ValorA, 2);
    EXPECT_EQ(this->data.m_ValorB, 7.5);
}

TYPED_TEST(ValoresLimpieza, NoOrderAndNoRangeIsChecked) {
    this->Acepta(L"0", L"-5");
    EXPECT_EQ(this->data.m_ValorA, 0);
    EXPECT_EQ(this->data.m_ValorB, -5);
}

// Cancel.

TYPED_TEST(ValoresLimpieza, CancelLeavesTheRecordUntouched) {
    this->data.m_ValorA = 2.345678;
    const auto resultado = this->Abre([](kit::Dialog& dialogo) {
        dialogo.type(TestFixture::A, L"1");
        dialogo.type(TestFixture::B, L"2");
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(resultado, IDCANCEL);
    EXPECT_EQ(this->data.m_ValorA, 2.345678);
    EXPECT_EQ(this->data.m_ValorB, -0.25);
}

// By keyboard alone.

TYPED_TEST(ValoresLimpieza, TypingOverTheFirstOneNeedsNoMouse) {
    const auto resultado = this->Abre([](kit::Dialog&) {
        kit::keyboard::type(L"4");
        kit::keyboard::press(VK_TAB);
        kit::keyboard::type(L"6");
        kit::keyboard::press(VK_RETURN);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(this->data.m_ValorA, 4);
    EXPECT_EQ(this->data.m_ValorB, 6);
}

// A host's own class on top of the dialog.

TYPED_TEST(ValoresLimpieza, HostSeesEachExchangeAsItIsDocumented) {
    ConIntercambios<TypeParam> contador(this->data);
    const auto resultado = this->Abre(contador, [&](kit::Dialog& dialogo) {
        EXPECT_EQ(contador.Intercambios(), "MM");
        dialogo.type(TestFixture::A, L"1");
        EXPECT_EQ(contador.Intercambios(), "");
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(contador.Intercambios(), "SS");
}

TYPED_TEST(ValoresLimpieza, ResultOfOksOwnExchangeIsNotLookedAt) {
    CDesconfiado<TypeParam> desconfiado(this->data);
    const auto resultado = this->Abre(desconfiado, [&](kit::Dialog& dialogo) {
        dialogo.type(TestFixture::A, L"8");
        dialogo.press(IDOK);
    });
    EXPECT_EQ(resultado, IDOK);
    EXPECT_EQ(this->data.m_ValorA, 8);
}

TYPED_TEST(ValoresLimpieza, AreInTheRecordWhenTheFrameworksExchangeIsRefused) {
    CDesconfiado<TypeParam> desconfiado(this->data);
    desconfiado.rechazado = 2;
    desconfiado.alRechazar = [this] {
        EXPECT_EQ(this->data.m_ValorA, 8);
        EXPECT_EQ(this->data.m_ValorB, 9);
    };
    const auto resultado = this->Abre(desconfiado, [&](kit::Dialog& dialogo) {
        dialogo.type(TestFixture::A, L"8");
        dialogo.type(TestFixture::B, L"9");
        dialogo.press(IDOK);
        dialogo.press(IDCANCEL);
    });
    EXPECT_EQ(resultado, IDCANCEL);
    EXPECT_EQ(this->data.m_ValorA, 8);
    EXPECT_EQ(this->data.m_ValorB, 9);
}

TYPED_TEST(ValoresLimpieza, SecondOneIsReadBeforeTheFirstOne) {
    const std::vector<int> valores{TestFixture::A, TestFixture::B};
    this->Abre([&](kit::Dialog& dialogo) {
        EXPECT_EQ(
            LeidosPorOk(dialogo, valores),
            (std::vector<int>{TestFixture::B, TestFixture::A, TestFixture::B, TestFixture::A}));
    });
}

/// Shows the members that a derived class sees.
template <class Dlg>
class ConMiembros : public Dlg {
public:
    using Dlg::Dlg;

    void Comprueba() const {
        const std::vector<const void*> miembros = {&this->m_TextoB, &this->m_TextoA,
                                                   &this->m_SinUso, &this->m_pData};
        EXPECT_TRUE(std::ranges::is_sorted(miembros));
        static_assert(std::is_same_v<decltype(this->m_SinUso), std::int32_t>);
        EXPECT_EQ(this->m_SinUso, 0);
        EXPECT_TRUE(this->m_TextoB.IsEmpty());
        EXPECT_TRUE(this->m_TextoA.IsEmpty());
    }
};

TYPED_TEST(ValoresLimpieza, MembersFollowEachOtherInTheirOrder) {
    ConMiembros<TypeParam>(this->data).Comprueba();
}

} // namespace
