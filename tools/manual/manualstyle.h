#pragma once

class QTextDocument;

/// The look of the printed manual: what Qt's reader of Markdown leaves open, or gets wrong.
namespace ManualStyle {

/// Removes the empty paragraphs that the reader leaves behind code, also in the first cell of a
/// table that follows, whose heading then loses its weight.
void tidy(QTextDocument &document);

/// Gives headings, paragraphs, code and tables of \a document their fonts, spaces and frames.
void apply(QTextDocument &document);

/// Begins a new page before every heading and table that would stand alone at the end of one. The
/// document's page size is set already, in units of which \a scale make a pixel of 96 dpi.
void keepTogether(QTextDocument &document, double scale);

} // namespace ManualStyle
