#pragma once

class QFont;
class QString;
class QWidget;

/// The look of the programs.
namespace AppStyle {

/// Lets Qt scale the windows on dense screens; to be called before the application object exists.
void enableHighDpi();

/// The file that holds the font of the programs, relative to the current directory.
QString fontFile();

/// The font of the programs, 12 pixels high: the family of fontFile() or, without that file, the
/// platform's.
QFont applicationFont();

/// Gives the application the style sheet from the resources and the palette that goes with it.
void applyStyleSheet();

/// Shows \a widget as the style sheet wants it now that one of its properties has changed. The
/// widget must have no font of its own.
void restyle(QWidget *widget);

} // namespace AppStyle
