// Numbers of a dialog: as text and back, their sign, and the size of a pixel. The decimal point is
// a point, whatever locale the host has set: files keep these texts, and an exchange reads no
// comma.
#pragma once

#include <afx.h>

namespace Cuadros {

/// A number with this many decimals, without exponent: 12.5 with two is "12.50".
///
/// @param decimales a negative one stands for six.
CString ConDecimales(double valor, int decimales);

/// An integer in decimal digits.
CString Entero(int valor);

/// The number that a text begins with, after any blanks; what follows it is not looked at. 0 where
/// it begins with none.
double LeeNumero(const CString& texto);

/// The integer that a text begins with, likewise: 2 of "2.9".
int LeeEntero(const CString& texto);

/// Sign of `valor` with a tolerance of 1e-7: -1 below -1e-7, +1 above 1e-7, else 0. Both limits
/// themselves give 0, and so does what is not a number.
int Signo(double valor);

/// What the text of a pixel size says: stores the size, in metres, without its sign, and tells the
/// memory that an image of the terrain then takes.
///
/// @param pixel where the size goes; one within 1e-7 of zero keeps its sign.
/// @param alto  height of the terrain, in metres.
/// @param ancho width of the terrain, in metres.
/// @return megabytes of three bytes per pixel with two decimals, or "-" when the size is within
///         1e-7 of zero.
CString LeePixel(const CString& texto, double& pixel, double alto, double ancho);

} // namespace Cuadros
