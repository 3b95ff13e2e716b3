// While the user types a pixel size, the dialog shows how much memory the image will take.
#include "cuadros/frame/MemoriaRaster.h"

#include "kit/kit.h"

TEST(MemoriaRaster, IsMegabytesOfThreeBytesPerPixel) {
    EXPECT_EQ(Cuadros::MemoriaRaster(1024, 1024, 1), L"3.00");
    EXPECT_EQ(Cuadros::MemoriaRaster(1024, 2048, 2), L"1.50");
    EXPECT_EQ(Cuadros::MemoriaRaster(1000, 1000, 0.1), L"286.10");
    EXPECT_EQ(Cuadros::MemoriaRaster(0, 1000, 1), L"0.00");
}

TEST(MemoriaRaster, SignOfThePixelCancelsOut) {
    EXPECT_EQ(Cuadros::MemoriaRaster(1024, 2048, -2), L"1.50");
}

TEST(MemoriaRaster, PixelWithinTheToleranceOfZeroHasNone) {
    EXPECT_EQ(Cuadros::MemoriaRaster(1024, 1024, 0), L"-");
    EXPECT_EQ(Cuadros::MemoriaRaster(1024, 1024, 1e-7), L"-");
    EXPECT_EQ(Cuadros::MemoriaRaster(1024, 1024, -1e-7), L"-");
    constexpr double minimo = 1.1e-7;
    EXPECT_EQ(Cuadros::MemoriaRaster(1024 * minimo, 1024 * minimo, minimo), L"3.00");
    EXPECT_EQ(Cuadros::MemoriaRaster(1024 * minimo, 1024 * minimo, -minimo), L"3.00");
}
