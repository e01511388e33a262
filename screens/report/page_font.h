// The fonts of printed pages. Reports name Arial, Times New Roman and Courier New; the Liberation
// fonts, which have the same widths, stand in for them on every machine. Text is measured by the
// fonts' own design widths, without hinting or kerning, so that a page is the same everywhere and
// on every device.
#pragma once

#include <QGlyphRun>
#include <QRawFont>
#include <QString>

// Twips: 1440 to the inch, 20 to the point.
inline constexpr int twipsPerInch = 1440;
inline constexpr int twipsPerPoint = 20;

enum class FontFamily : quint8 { Arial, TimesNewRoman, CourierNew };

// Case-blind; a name that is none of the three gives Arial.
FontFamily fontFamilyOf(const QString& name);
QString fontName(FontFamily family);

struct PageFont
{
    FontFamily family = FontFamily::Arial;
    bool bold = false;
    double size = 10;  // points

    bool operator==(const PageFont&) const = default;
};

// True if the fonts of pages are installed.
bool pageFontsAreInstalled();

// In twips. Characters that the fonts lack count as one em.
int textWidth(QStringView text, const PageFont& font);
int lineHeight(const PageFont& font);
int ascentOf(const PageFont& font);

// How many characters from the left fit the width.
int fittingLength(QStringView text, const PageFont& font, int width);

// The font, or the same in a smaller size by whole points, down to `smallest`, in which the text
// fits the width; the smallest where it fits in none.
PageFont fittingFont(QStringView text, PageFont font, int width, double smallest);

// The lines of a text in that width: broken at its own line breaks and at blanks, and within a word
// that is wider than a line. At least one line.
QStringList wrappedLines(const QString& text, const PageFont& font, int width);

// What draws the text with its left end of the baseline at the origin; empty when the fonts lack
// one of the characters.
QGlyphRun glyphsOf(const QString& text, const PageFont& font);
// For texts that have no glyph run.
QFont paintingFont(const PageFont& font);
