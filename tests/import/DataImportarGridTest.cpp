// A host fills in what its grid file holds and hands the record to the dialog of the import.
#include "cuadros/import/DataImportarGrid.h"

#include "Registros.h"

#include <algorithm>
#include <cstdint>
#include <type_traits>
#include <vector>

namespace {

static_assert(std::has_virtual_destructor_v<CDataImportarGrid>);

// Hosts are built against these.
static_assert(std::is_same_v<decltype(&CDataImportarGrid::GetProfile),
                             void (CDataImportarGrid::*)(const CString&)>);
static_assert(std::is_same_v<decltype(&CDataImportarGrid::WriteProfile),
                             void (CDataImportarGrid::*)(const CString&) const>);
static_assert(std::is_same_v<decltype(&CDataImportarGrid::GetPrivateProfile),
                             void (CDataImportarGrid::*)(const CString&, const CString&)>);
static_assert(std::is_same_v<decltype(&CDataImportarGrid::WritePrivateProfile),
                             void (CDataImportarGrid::*)(const CString&, const CString&) const>);

template <class Campo>
using CampoDe = Campo CDataImportarGrid::*;
static_assert(std::is_same_v<decltype(&CDataImportarGrid::m_Razon), CampoDe<std::int32_t>>);
static_assert(std::is_same_v<decltype(&CDataImportarGrid::m_PuntosFichero), CampoDe<std::int32_t>>);
static_assert(
    std::is_same_v<decltype(&CDataImportarGrid::m_PuntosImportar), CampoDe<std::int32_t>>);
static_assert(std::is_same_v<decltype(&CDataImportarGrid::m_NoData), CampoDe<std::int32_t>>);

} // namespace

TEST(DataImportarGrid, StartsWithEveryNodeOfNoRectangle) {
    const CDataImportarGrid data;
    for (const auto* extension : {&data.m_ExtensionFichero, &data.m_Extension}) {
        EXPECT_EQ(Campos(extension->m_Maximo), std::make_tuple(0.0, 0.0, 0.0, 0));
        EXPECT_EQ(Campos(extension->m_Minimo), std::make_tuple(0.0, 0.0, 0.0, 0));
    }
    EXPECT_EQ(Campos(data.m_Paso), std::make_tuple(0.0, 0.0, 0.0, 0));
    EXPECT_EQ(data.m_Razon, 1);
    EXPECT_EQ(data.m_PuntosFichero, 0);
    EXPECT_EQ(data.m_PuntosImportar, 0);
    EXPECT_EQ(data.m_NoData, -9999);
    EXPECT_EQ(data.m_Elipsoide.GetIndice(), Cotana::CElipsoide().GetIndice());
}

TEST(DataImportarGrid, FieldsFollowEachOtherInTheirOrder) {
    const CDataImportarGrid data;
    const std::vector<const void*> campos = {&data,
                                             &data.m_ExtensionFichero,
                                             &data.m_Extension,
                                             &data.m_Paso,
                                             &data.m_Razon,
                                             &data.m_PuntosFichero,
                                             &data.m_PuntosImportar,
                                             &data.m_NoData,
                                             &data.m_Elipsoide};
    EXPECT_TRUE(std::ranges::is_sorted(campos));
}

TEST(DataImportarGrid, IsCopiedAndAssignedFieldByField) {
    const auto data = Relleno<CDataImportarGrid>();
    ASSERT_NE(Campos(data), Campos(CDataImportarGrid()));
    const CDataImportarGrid copia(data);
    EXPECT_EQ(Campos(copia), Campos(data));
    CDataImportarGrid asignado;
    EXPECT_EQ(&(asignado = data), &asignado);
    EXPECT_EQ(Campos(asignado), Campos(data));
    asignado = *&asignado;
    EXPECT_EQ(Campos(asignado), Campos(data));
}
