#pragma once

class wxGridTableBase;

/// Tells the grid of a virtual table that its rows are others now: the selection goes, the scroll position stays as
/// far as the new rows reach.
/// @param before  rows that the grid knows of
/// @param after   rows that the table now has
void announceNewRows(wxGridTableBase& table, int before, int after);
