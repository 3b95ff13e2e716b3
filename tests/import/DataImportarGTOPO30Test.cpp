// A host fills in what its tile holds and hands the record to the dialog of the import.
#include "cuadros/import/DataImportarGTOPO30.h"

#include "Registros.h"

#include <algorithm>
#include <cstdint>
#include <type_traits>
#include <vector>

namespace {

static_assert(std::is_base_of_v<CDataImportarGrid, CDataImportarGTOPO30>);

// Hosts are built against these, which are the record's own.
static_assert(std::is_same_v<decltype(&CDataImportarGTOPO30::GetProfile),
                             void (CDataImportarGTOPO30::*)(const CString&)>);
static_assert(std::is_same_v<decltype(&CDataImportarGTOPO30::WriteProfile),
                             void (CDataImportarGTOPO30::*)(const CString&) const>);
static_assert(std::is_same_v<decltype(&CDataImportarGTOPO30::GetPrivateProfile),
                             void (CDataImportarGTOPO30::*)(const CString&, const CString&)>);
static_assert(std::is_same_v<decltype(&CDataImportarGTOPO30::WritePrivateProfile),
                             void (CDataImportarGTOPO30::*)(const CString&, const CString&) const>);

template <class Campo>
using CampoDe = Campo CDataImportarGTOPO30::*;
static_assert(std::is_same_v<decltype(&CDataImportarGTOPO30::m_Huso), CampoDe<std::int32_t>>);
static_assert(
    std::is_same_v<decltype(&CDataImportarGTOPO30::m_TipoProyeccion), CampoDe<std::int32_t>>);

} // namespace

TEST(DataImportarGTOPO30, StartsAsAGridInZone30) {
    const CDataImportarGTOPO30 data;
    EXPECT_EQ(data.m_Huso, 30);
    EXPECT_EQ(data.m_TipoProyeccion, 1);
    EXPECT_EQ(Campos(static_cast<const CDataImportarGrid&>(data)), Campos(CDataImportarGrid()));
}

TEST(DataImportarGTOPO30, ItsFieldsFollowThoseOfTheGrid) {
    const CDataImportarGTOPO30 data;
    const std::vector<const void*> campos = {&data.m_Elipsoide, &data.m_Huso,
                                             &data.m_TipoProyeccion};
    EXPECT_TRUE(std::ranges::is_sorted(campos));
}

TEST(DataImportarGTOPO30, IsCopiedAndAssignedFieldByField) {
    const auto data = Relleno<CDataImportarGTOPO30>();
    const CDataImportarGTOPO30 copia(data);
    EXPECT_EQ(Campos(copia), Campos(data));
    CDataImportarGTOPO30 asignado;
    EXPECT_EQ(&(asignado = data), &asignado);
    EXPECT_EQ(Campos(asignado), Campos(data));
    asignado = *&asignado;
    EXPECT_EQ(Campos(asignado), Campos(data));
}
