// The user asks for help, and the host's help file opens at the page of the dialog.
#include "cuadros/frame/Ayuda.h"

#include "OtraAplicacion.h"
#include "kit/app/RecordingApp.h"
#include "kit/kit.h"

TEST(Ayuda, ContextIsTheTemplateNumberAboveItsBase) {
    EXPECT_EQ(Cuadros::ContextoAyuda(19011), 150083U);
    EXPECT_EQ(Cuadros::ContextoAyuda(20107), 151179U);
    EXPECT_EQ(Cuadros::ContextoAyuda(38132), 169204U);
}

TEST(Ayuda, IsAskedOfTheHostsApplication) {
    Cuadros::AbreAyuda(150073);
    EXPECT_EQ(kit::app.takeHelpRequests(), (std::vector<kit::HelpRequest>{{150073, 15}}));
}

TEST(Ayuda, HostWithoutApplicationObjectGivesNone) {
    {
        const OtraAplicacion ninguna(nullptr);
        Cuadros::AbreAyuda(150073);
    }
    EXPECT_TRUE(kit::app.takeHelpRequests().empty());
}
