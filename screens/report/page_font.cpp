#include "screens/report/page_font.h"

#include <QFont>
#include <array>
#include <cmath>

namespace {

// A face at one pixel an em unit, so that its advances are the design's.
class Face
{
public:
    Face(FontFamily family, bool bold)
    {
        static const char* const standIns[] = {"Liberation Sans", "Liberation Serif",
                                               "Liberation Mono"};
        QFont font(standIns[static_cast<int>(family)]);
        font.setBold(bold);
        font.setHintingPreference(QFont::PreferNoHinting);
        font.setStyleStrategy(QFont::NoFontMerging);
        font.setPixelSize(1000);
        m_raw = QRawFont::fromFont(font);
        m_isStandIn = m_raw.familyName() == standIns[static_cast<int>(family)];
        m_raw.setPixelSize(m_raw.unitsPerEm());
        for (ushort code = 0; code < m_common.size(); ++code)
            m_common[code] = lookUp(code);
    }

    struct Glyph
    {
        quint32 index = 0;
        float advance = 0;  // em units
    };

    const Glyph& glyph(char32_t code) const
    {
        if (code < m_common.size())
            return m_common[code];
        const auto known = m_others.constFind(code);
        if (known != m_others.cend())
            return *known;
        return *m_others.insert(code, lookUp(code));
    }

    double unitsPerEm() const { return m_raw.unitsPerEm(); }
    double ascent() const { return m_raw.ascent(); }
    double descent() const { return m_raw.descent(); }
    const QRawFont& raw() const { return m_raw; }
    bool isStandIn() const { return m_isStandIn; }

    // The face in a size in twips; kept, because making one costs more than drawing with it.
    const QRawFont& inSize(double twips) const
    {
        const auto known = m_sizes.constFind(twips);
        if (known != m_sizes.cend())
            return *known;
        QRawFont sized = m_raw;
        sized.setPixelSize(twips);
        return *m_sizes.insert(twips, sized);
    }

private:
    Glyph lookUp(char32_t code) const
    {
        const auto indexes = m_raw.glyphIndexesForString(QString::fromUcs4(&code, 1));
        if (indexes.isEmpty() || indexes[0] == 0)
            return {0, code < 32 ? 0.0F : static_cast<float>(m_raw.unitsPerEm())};
        const auto advances = m_raw.advancesForGlyphIndexes(
            {indexes[0]}, QRawFont::SeparateAdvances | QRawFont::UseDesignMetrics);
        return {indexes[0], static_cast<float>(advances[0].x())};
    }

    QRawFont m_raw;
    bool m_isStandIn = false;
    std::array<Glyph, 256> m_common;
    mutable QHash<char32_t, Glyph> m_others;
    mutable QHash<double, QRawFont> m_sizes;
};

const Face& faceOf(const PageFont& font)
{
    static const std::array<Face, 6> faces = {
        Face(FontFamily::Arial, false),         Face(FontFamily::Arial, true),
        Face(FontFamily::TimesNewRoman, false), Face(FontFamily::TimesNewRoman, true),
        Face(FontFamily::CourierNew, false),    Face(FontFamily::CourierNew, true)};
    return faces[static_cast<size_t>(font.family) * 2 + (font.bold ? 1 : 0)];
}

double twipsPerUnit(const Face& face, const PageFont& font)
{
    return font.size * twipsPerPoint / face.unitsPerEm();
}

// Calls `take(glyph, length)` for each character, with its length in the text, while it gives true.
template <class Take>
void eachGlyph(QStringView text, const Face& face, Take take)
{
    for (qsizetype at = 0; at < text.size();) {
        const QChar unit = text[at];
        const bool isPair =
            unit.isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
        const char32_t code =
            isPair ? QChar::surrogateToUcs4(unit, text[at + 1]) : char32_t(unit.unicode());
        if (!take(face.glyph(code), isPair ? 2 : 1))
            return;
        at += isPair ? 2 : 1;
    }
}

double units(QStringView text, const Face& face)
{
    double sum = 0;
    eachGlyph(text, face, [&](const Face::Glyph& glyph, int) {
        sum += glyph.advance;
        return true;
    });
    return sum;
}

// Takes the words that fit one line off the front of `rest`.
QString takeLine(QStringView& rest, const PageFont& font, int width)
{
    const int fits = std::max(1, fittingLength(rest, font, width));
    if (fits >= rest.size()) {
        const QString line = rest.toString();
        rest = {};
        return line;
    }
    const qsizetype blank = rest.left(fits + 1).lastIndexOf(u' ');
    const qsizetype cut = blank > 0 ? blank : fits;
    const QString line = rest.left(cut).toString();
    rest = rest.mid(cut);
    while (rest.startsWith(u' '))
        rest = rest.mid(1);
    return line;
}

}  // namespace

FontFamily fontFamilyOf(const QString& name)
{
    if (name.compare("Times New Roman", Qt::CaseInsensitive) == 0)
        return FontFamily::TimesNewRoman;
    if (name.compare("Courier New", Qt::CaseInsensitive) == 0)
        return FontFamily::CourierNew;
    return FontFamily::Arial;
}

QString fontName(FontFamily family)
{
    static const char* const names[] = {"Arial", "Times New Roman", "Courier New"};
    return names[static_cast<int>(family)];
}

bool pageFontsAreInstalled()
{
    for (const FontFamily family :
         {FontFamily::Arial, FontFamily::TimesNewRoman, FontFamily::CourierNew})
        if (!faceOf({family, false, 10}).isStandIn() || !faceOf({family, true, 10}).isStandIn())
            return false;
    return true;
}

int textWidth(QStringView text, const PageFont& font)
{
    const Face& face = faceOf(font);
    return static_cast<int>(std::ceil(units(text, face) * twipsPerUnit(face, font)));
}

int lineHeight(const PageFont& font)
{
    const Face& face = faceOf(font);
    return static_cast<int>(std::ceil((face.ascent() + face.descent()) * twipsPerUnit(face, font)));
}

int ascentOf(const PageFont& font)
{
    const Face& face = faceOf(font);
    return static_cast<int>(std::lround(face.ascent() * twipsPerUnit(face, font)));
}

int fittingLength(QStringView text, const PageFont& font, int width)
{
    const Face& face = faceOf(font);
    const double room = width / twipsPerUnit(face, font);
    double sum = 0;
    int length = 0;
    eachGlyph(text, face, [&](const Face::Glyph& glyph, int unitCount) {
        sum += glyph.advance;
        if (sum > room)
            return false;
        length += unitCount;
        return true;
    });
    return length;
}

PageFont fittingFont(QStringView text, PageFont font, int width, double smallest)
{
    while (font.size > smallest && textWidth(text, font) > width)
        font.size -= 1;
    return font;
}

QStringList wrappedLines(const QString& text, const PageFont& font, int width)
{
    QStringList lines;
    QString unified = text;
    unified.replace("\r\n", "\n").replace('\r', '\n');
    for (const QString& paragraph : unified.split('\n')) {
        QStringView rest = paragraph;
        do
            lines.append(takeLine(rest, font, width));
        while (!rest.isEmpty());
    }
    return lines;
}

QGlyphRun glyphsOf(const QString& text, const PageFont& font)
{
    const Face& face = faceOf(font);
    const double scale = twipsPerUnit(face, font);
    QList<quint32> indexes;
    QList<QPointF> places;
    indexes.reserve(text.size());
    places.reserve(text.size());
    double x = 0;
    bool hasAll = true;
    eachGlyph(text, face, [&](const Face::Glyph& glyph, int) {
        hasAll = glyph.index != 0;
        indexes.append(glyph.index);
        places.append({x * scale, 0});
        x += glyph.advance;
        return hasAll;
    });
    QGlyphRun run;
    if (!hasAll)
        return run;
    run.setRawFont(face.inSize(font.size * twipsPerPoint));
    run.setGlyphIndexes(indexes);
    run.setPositions(places);
    return run;
}

QFont paintingFont(const PageFont& font)
{
    QFont painting(faceOf(font).raw().familyName());
    painting.setBold(font.bold);
    painting.setKerning(false);
    painting.setHintingPreference(QFont::PreferNoHinting);
    painting.setPixelSize(static_cast<int>(std::lround(font.size * twipsPerPoint)));
    return painting;
}
