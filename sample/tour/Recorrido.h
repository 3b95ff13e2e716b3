#pragma once

#include "sample/tour/RecorridoApp.h"

/// The tour: opens every conversation without a display, drives and confirms it, prints its record
/// before and after, and leaves pictures and a page, index.html, that shows it all.
///
/// @param carpeta folder for the results; made when it is not there.
/// @return true when every conversation went as its script says.
bool Recorre(CRecorridoApp& app, Terreno& terreno, const CString& carpeta);
