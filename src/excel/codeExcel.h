// A start list that is kept as an Excel workbook: the worksheet is copied into a hidden grid, and from there the column
// letters of the settings fill the start list.
#pragma once

#include "app/programma.h"
#include "basis/grid.h"
#include "basis/seams.h"

#include <string>
#include <string_view>

namespace tavelo {

class ExcelApplication;

// Width in twips that the columns of a copied sheet share. The grid is never shown; only their proportions matter.
inline constexpr int grid_excel_breedte = 15000;

// Copies sheet number `blad` (from 1, over sheets of all types) of workbook `bestand` into `grid`: the displayed texts
// from A1 on, as many rows and columns as the used range counts, and the widths in the proportions of the sheet. The
// grid is emptied first, whatever follows. An extension other than "xls" or "xlsx" (in small letters) reads nothing; a
// workbook that does not open gives the one message "YEP1: " and why; any later failure leaves the cell, or the whole
// grid, empty. When memory runs out, wherever, the grid is empty and "YEP1: " says so. True when that sheet was the
// last one, or when none was read; false when more sheets follow.
bool lees_excel(std::string_view bestand, int blad, Grid& grid, ExcelApplication& excel, MessageBox& berichten,
                Pointer& muisaanwijzer);

// The text in the column that a letter names, "" for no letter and for a column that the grid does not have. Only the
// first letter counts, in either case: "AB" is column A. It is meant so.
[[nodiscard]] std::string excel_kolom(const Grid& bron, int rij, std::string_view kolom_letter);

enum class Meldingen { tonen, zwijgen };

// Fills `doel` from the copied sheet `bron` by the column letters of the settings; every row counts, a header row of
// the sheet as well. With `tonen` a message asks for the letters when neither a start number nor a name was found.
void vul_xls_rooster(Grid& doel, const Grid& bron, Meldingen meldingen, Programma& programma, MessageBox& berichten,
                     Pointer& muisaanwijzer);

// Shows the first sheet of a workbook as the start list. The slot makes no difference.
void open_excel_rooster(std::string_view bestand, int slot, Programma& programma, ExcelApplication& excel,
                        MessageBox& berichten, Pointer& muisaanwijzer);

} // namespace tavelo
