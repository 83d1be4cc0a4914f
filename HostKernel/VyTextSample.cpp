// SPDX-License-Identifier: MIT
#include "VyTextSample.h"

#include <QTextCodec>

#include <algorithm>

namespace VyTextSample {

namespace {

using Id = OdCodePageId;

constexpr int longestLine = 200; // characters

struct Typical
{
    std::vector<Id> pages;
    const char16_t* text;
};

// What stands on drawings: plan, scale, height, section.
const std::vector<Typical>& typicalTexts()
{
    static const std::vector<Typical> texts = {
        {{Id::Ansi1252, Id::Iso8859_1, Id::Macintosh, Id::Dos850, Id::Dos437},
         u"Maßstab 1:50, Höhe ±0,00, façade, sección"},
        {{Id::Ascii}, u"Scale 1:50, height, section, elevation"},
        {{Id::Iso8859_3}, u"Skala 1:50, għoli, wisgħa, żona"},
        {{Id::Dos860}, u"Fachada, secção 1:50, dimensões, área"},
        {{Id::Dos861}, u"Mælikvarði 1:50, hæð, þak, stærð"},
        {{Id::Dos863}, u"Échelle 1:50, façade, élévation, côté"},
        {{Id::Dos865}, u"Målestokk 1:50, høyde, længde, bjälke"},
        {{Id::Ansi1250, Id::Iso8859_2, Id::Dos852}, u"Měřítko 1:50, výška, szerokość, przekrój"},
        {{Id::Ansi1257, Id::Iso8859_4}, u"Mērogs 1:50, augstums, brėžinys, kõrgus"},
        {{Id::Ansi1251, Id::Iso8859_5, Id::Dos866, Id::Dos855},
         u"План, масштаб 1:50, высота, разрез"},
        {{Id::Ansi1253, Id::Iso8859_7, Id::Dos869}, u"Κάτοψη, κλίμακα 1:50, ύψος, τομή"},
        {{Id::Ansi1254, Id::Iso8859_9, Id::Dos857}, u"Ölçek 1:50, yükseklik, genişlik, ışık"},
        {{Id::Ansi1255, Id::Iso8859_8}, u"תכנית, קנה מידה 1:50, גובה"},
        {{Id::Ansi1256, Id::Iso8859_6}, u"مخطط، مقياس 1:50، ارتفاع"},
        // This page holds the shapes of letters, not the letters.
        {{Id::Dos864}, u"\uFE8D\uFEAD\uFE97\uFED3\uFE8E\uFEC9 1:50\u060C \uFEE3\uFEAD\uFEDB\uFEAF"},
        {{Id::Ansi932, Id::Dos932}, u"図面 尺度 1:50 高さ 寸法 鉄筋コンクリート"},
        {{Id::Ansi936, Id::Gb2312}, u"图纸 比例 1:50 高度 钢筋混凝土"},
        {{Id::Ansi950, Id::Big5}, u"圖面 比例 1:50 高度 鋼筋混凝土"},
        {{Id::Ansi949, Id::Ksc5601, Id::Ansi1361, Id::Johab}, u"도면 축척 1:50 높이 철근 콘크리트"},
        {{Id::Ansi874}, u"แบบแปลน มาตราส่วน 1:50 ความสูง"},
        // This page has most accents apart from their letters.
        {{Id::Ansi1258}, u"Ba\u0309n ve\u0303, ty\u0309 lê\u0323 1:50, chiê\u0300u cao"},
        {{Id::Utf8, Id::Utf16}, u"Höhe, высота, ύψος, ارتفاع, 高さ, 높이"},
    };
    return texts;
}

const QTextCodec* codecOf(const CVyCodePage& page)
{
    const QList<QByteArray> names = QByteArray(page.otherNames).split(' ');
    for (const QByteArray& name : names) {
        if (const QTextCodec* const codec = QTextCodec::codecForName(name))
            return codec;
    }
    return nullptr;
}

// Composed, since few fonts place accents well that stand apart.
QString shown(const QString& decoded)
{
    QString line = singleLine(decoded.normalized(QString::NormalizationForm_C));
    if (line.size() <= longestLine)
        return line;
    const bool cutsPair = line.at(longestLine - 1).isHighSurrogate();
    return line.left(cutsPair ? longestLine - 1 : longestLine) + QChar(0x2026);
}

} // namespace

bool canDecode(const CVyCodePage& page)
{
    return codecOf(page);
}

QString decoded(const CVyCodePage& page, const QList<QByteArray>& values)
{
    const QTextCodec* const codec = codecOf(page);
    if (!codec)
        return {};
    QStringList lines;
    for (const QByteArray& value : values)
        lines.append(shown(codec->toUnicode(value)));
    return lines.join(QLatin1Char('\n'));
}

QString typical(const CVyCodePage& page)
{
    const auto& texts = typicalTexts();
    const auto found = std::find_if(texts.begin(), texts.end(), [&page](const Typical& row) {
        return std::find(row.pages.begin(), row.pages.end(), page.id) != row.pages.end();
    });
    const QTextCodec* const codec = codecOf(page);
    if (!codec || found == texts.end())
        return {};
    return decoded(page, {codec->fromUnicode(QString::fromUtf16(found->text))});
}

QString singleLine(QString text)
{
    for (QChar& unit : text) {
        if (unit.category() == QChar::Other_Control)
            unit = QChar::ReplacementCharacter;
    }
    return text;
}

} // namespace VyTextSample
