#pragma once

class QString;
class ReportPrinter;
struct SurfaceFont;

/// Prints a text as a document in portrait format, in this font, with margins of half an inch at
/// the left and at the right: a line too long for the paper goes on below, a full page on the next
/// one. Lines end in CR LF or LF; tabs reach to the next of every eighth column. Raises what the
/// printer raises.
void PrintResultsText(ReportPrinter& printer, const SurfaceFont& font, const QString& text);
