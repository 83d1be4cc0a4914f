// SPDX-License-Identifier: MIT
#include "VySvgCheck.h"

#include "VyPreviewLimits.h"
#include "VySvgCost.h"

#include <QHash>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>
#include <vector>

namespace VySvgCheck {

namespace {

constexpr std::size_t mostLevels = 32;
constexpr int largestSide = 256; // pixels
constexpr double largestFont = 1000;

// What an attribute holds, as far as it matters here.
enum class Kind
{
    Unknown,
    Text,   ///< is for others to read
    Word,   ///< names, and lists of them
    Length, ///< a number, perhaps with a unit
    Numbers,
    Path,
    Transform,
    Paint,
    Font, ///< a size
    Style ///< other attributes in one
};

Kind kindOf(const QString& name)
{
    static const QHash<QString, Kind> kinds = [] {
        const std::pair<Kind, const char*> lists[] = {
            {Kind::Text, "id class version baseProfile xml:space"},
            {Kind::Word, "fill-rule stroke-linecap stroke-linejoin display visibility "
                         "font-family font-weight font-style text-anchor gradientUnits "
                         "spreadMethod preserveAspectRatio vector-effect"},
            {Kind::Length, "x y x1 y1 x2 y2 cx cy r rx ry fx fy width height stroke-width "
                           "stroke-miterlimit stroke-dashoffset opacity fill-opacity "
                           "stroke-opacity stop-opacity offset"},
            {Kind::Numbers, "points viewBox stroke-dasharray"},
            {Kind::Path, "d"},
            {Kind::Transform, "transform gradientTransform"},
            {Kind::Paint, "fill stroke color stop-color"},
            {Kind::Font, "font-size"},
            {Kind::Style, "style"}};
        QHash<QString, Kind> result;
        for (const auto& [kind, names] : lists) {
            const QStringList all = QString::fromLatin1(names).split(QLatin1Char(' '));
            for (const QString& each : all)
                result.insert(each, kind);
        }
        return result;
    }();
    return kinds.value(name, Kind::Unknown);
}

bool isKnownElement(QStringView name)
{
    static const QStringList names =
        QStringLiteral("svg g defs title desc path rect circle ellipse line polyline polygon text "
                       "tspan linearGradient radialGradient stop")
            .split(QLatin1Char(' '));
    return names.contains(name);
}

bool isTextElement(QStringView name)
{
    return name == QLatin1String("text") || name == QLatin1String("tspan");
}

bool matches(const QString& value, const QRegularExpression& pattern)
{
    return value.size() < 200 && pattern.match(value).hasMatch();
}

bool isWord(const QString& value)
{
    static const QRegularExpression pattern(QStringLiteral("\\A[\\w .,'\"-]*\\z"),
                                            QRegularExpression::UseUnicodePropertiesOption);
    return matches(value, pattern);
}

bool isPaint(const QString& value)
{
    static const QRegularExpression pattern(QStringLiteral(
        "\\A\\s*(#[0-9A-Fa-f]{3,6}|[A-Za-z]+|rgb\\([0-9.,% ]+\\)|url\\(#[\\w.-]+\\))\\s*\\z"));
    return matches(value, pattern);
}

// A length in CSS's pixels; false for none, and for a share of another one unless
// \a share is there to be told of it.
bool readLength(const QString& value, double& pixels, bool* share)
{
    static const QRegularExpression pattern(
        QStringLiteral("\\A\\s*([-+.0-9eE]+?)(px|pt|pc|mm|cm|in|%|)\\s*\\z"));
    static const QHash<QString, double> units = {{QString(), 1},
                                                 {QStringLiteral("px"), 1},
                                                 {QStringLiteral("pt"), 96 / 72.0},
                                                 {QStringLiteral("pc"), 16},
                                                 {QStringLiteral("mm"), 96 / 25.4},
                                                 {QStringLiteral("cm"), 96 / 2.54},
                                                 {QStringLiteral("in"), 96}};
    const QRegularExpressionMatch match = pattern.match(value);
    QVector<double> numbers;
    if (value.size() > 40 || !match.hasMatch() ||
        !VySvgCost::readNumbers(match.captured(1), numbers) || numbers.size() != 1)
        return false;
    if (share)
        *share = match.captured(2) == QLatin1String("%");
    pixels = numbers.first() * units.value(match.captured(2), 0.01);
    return std::abs(pixels) <= VySvgCost::largestNumber;
}

// An element while it is read: what it inherits, and what its attributes say.
struct Element
{
    VySvgCost::Style style;
    QHash<QString, double> lengths;
    QSize shares; // 1 for a width, or height, that is a share
    VySvgCost::Outline outline;
    QVector<double> points;
    QVector<double> viewBox;
    bool hasFont = false;
};

// Reads the attributes of \a element; each returns false where one is not as it
// should be.
class Attributes
{
public:
    explicit Attributes(Element& element)
        : m_element(element)
    {}

    bool read(const QXmlStreamAttributes& attributes)
    {
        for (const QXmlStreamAttribute& attribute : attributes) {
            if (!read(attribute.qualifiedName().toString(), attribute.value().toString()))
                return false;
        }
        return true;
    }

private:
    bool read(const QString& name, const QString& value)
    {
        const Kind kind = kindOf(name);
        m_element.hasFont = m_element.hasFont || name.startsWith(QLatin1String("font"));
        switch (kind) {
        case Kind::Text:
            return true;
        case Kind::Word:
            return isWord(value);
        case Kind::Length:
            return readLengthOf(name, value);
        case Kind::Numbers:
            return readNumbersOf(name, value);
        case Kind::Path:
            return VySvgCost::readPath(value, m_element.outline);
        case Kind::Transform:
            return VySvgCost::readScale(value, m_element.style.scale);
        case Kind::Paint:
            return readPaint(name, value);
        case Kind::Font:
            return readFont(value);
        case Kind::Style:
            return readStyle(value);
        case Kind::Unknown:
            return false;
        }
        return false;
    }
    bool readLengthOf(const QString& name, const QString& value)
    {
        double pixels = 0;
        bool share = false;
        if (!readLength(value, pixels, &share))
            return false;
        m_element.lengths.insert(name, pixels);
        if (name == QLatin1String("width"))
            m_element.shares.setWidth(share ? 1 : 0);
        if (name == QLatin1String("height"))
            m_element.shares.setHeight(share ? 1 : 0);
        if (name == QLatin1String("stroke-width"))
            m_element.style.strokeWidth = std::abs(pixels);
        return true;
    }
    bool readNumbersOf(const QString& name, const QString& value)
    {
        QVector<double> numbers;
        const bool isDashes = name == QLatin1String("stroke-dasharray");
        const bool isNone = isDashes && value == QLatin1String("none");
        if (!isNone && !VySvgCost::readNumbers(value, numbers))
            return false;
        if (name == QLatin1String("points"))
            m_element.points = numbers;
        else if (!isDashes)
            m_element.viewBox = numbers;
        else
            m_element.style.dashPeriod = std::accumulate(numbers.cbegin(), numbers.cend(), 0.0);
        const auto isNegative = [](double number) { return number < 0; };
        return !isDashes || isNone ||
               (m_element.style.dashPeriod > 0 &&
                std::none_of(numbers.cbegin(), numbers.cend(), isNegative));
    }
    bool readPaint(const QString& name, const QString& value)
    {
        const bool isSome = value.trimmed() != QLatin1String("none");
        if (name == QLatin1String("fill"))
            m_element.style.isFilled = isSome;
        if (name == QLatin1String("stroke"))
            m_element.style.isStroked = isSome;
        return isPaint(value);
    }
    static bool readFont(const QString& value)
    {
        double pixels = 0;
        bool share = false;
        return readLength(value, pixels, &share) && !share && pixels >= 1 && pixels <= largestFont;
    }
    bool readStyle(const QString& value)
    {
        const QStringList parts = value.split(QLatin1Char(';'), Qt::SkipEmptyParts);
        for (const QString& part : parts) {
            const QString name = part.section(QLatin1Char(':'), 0, 0).trimmed();
            if (!part.trimmed().isEmpty() &&
                (name == QLatin1String("style") ||
                 !read(name, part.section(QLatin1Char(':'), 1).trimmed())))
                return false;
        }
        return true;
    }

    Element& m_element;
};

// The outline of \a element, which is called \a name; empty for what is no shape.
VySvgCost::Outline outlineOf(const Element& element, QStringView name)
{
    const auto length = [&element](const char* which) {
        return element.lengths.value(QString::fromLatin1(which));
    };
    const auto around = [](double x, double y, double width, double height) {
        return VySvgCost::polygon({x, y, x + width, y, x + width, y + height, x, y + height});
    };
    if (name == QLatin1String("rect"))
        return around(length("x"), length("y"), length("width"), length("height"));
    if (name == QLatin1String("circle") || name == QLatin1String("ellipse")) {
        const bool isCircle = name == QLatin1String("circle");
        const double rx = length(isCircle ? "r" : "rx");
        const double ry = length(isCircle ? "r" : "ry");
        return around(length("cx") - rx, length("cy") - ry, 2 * rx, 2 * ry);
    }
    if (name == QLatin1String("line"))
        return VySvgCost::polygon({length("x1"), length("y1"), length("x2"), length("y2")});
    if (name == QLatin1String("polyline") || name == QLatin1String("polygon"))
        return VySvgCost::polygon(element.points);
    return element.outline;
}

// Brings the larger side down to what is drawn.
QSize drawn(double width, double height)
{
    const double scale = std::min(1.0, largestSide / std::max(width, height));
    return {std::max(1, qRound(width * scale)), std::max(1, qRound(height * scale))};
}

class Reader
{
public:
    explicit Reader(const QByteArray& svg)
        : m_xml(svg)
    {}

    Drawing read()
    {
        while (!m_xml.atEnd()) {
            if (!take(m_xml.readNext()))
                return {};
        }
        return m_drawing;
    }

    // Whether there is nothing against the text up to its end, which is that of its
    // beginning, and a drawing has begun.
    bool canGoOn()
    {
        while (m_xml.readNext() != QXmlStreamReader::Invalid) {
            if (!take(m_xml.tokenType()))
                return false;
        }
        return m_xml.error() == QXmlStreamReader::PrematureEndOfDocumentError &&
               m_drawing.size.isValid();
    }

private:
    bool take(QXmlStreamReader::TokenType token)
    {
        switch (token) {
        case QXmlStreamReader::StartDocument:
            return m_xml.documentEncoding().isEmpty() ||
                   m_xml.documentEncoding().compare(QLatin1String("UTF-8"), Qt::CaseInsensitive) ==
                       0;
        case QXmlStreamReader::StartElement:
            return m_open.size() < mostLevels && takeElement();
        case QXmlStreamReader::EndElement:
            m_open.pop_back();
            return true;
        case QXmlStreamReader::Characters:
            return m_xml.isWhitespace() || takeText();
        case QXmlStreamReader::Comment:
        case QXmlStreamReader::EndDocument:
            return true;
        default: // an error, a document type, an entity, a processing instruction
            return false;
        }
    }

    bool takeElement()
    {
        const QStringView name = m_xml.name();
        const bool isRoot = m_open.empty();
        if (m_xml.namespaceUri() != QLatin1String("http://www.w3.org/2000/svg") ||
            !isKnownElement(name) || isRoot != (name == QLatin1String("svg")))
            return false;
        Element element;
        if (!isRoot)
            element.style = m_open.back().style;
        if (!Attributes(element).read(m_xml.attributes()))
            return false;
        if (isRoot && !takeSize(element))
            return false;
        m_drawing.hasText = m_drawing.hasText || element.hasFont || isTextElement(name);
        const bool isShape = !isRoot && !isTextElement(name);
        m_open.push_back({name.toString(), element.style});
        return pay(isShape ? VySvgCost::shape(outlineOf(element, name), element.style, largestSide)
                           : VySvgCost::elementPrice);
    }

    bool takeSize(Element& root)
    {
        const bool hasBox = root.viewBox.size() == 4;
        const QSizeF box = hasBox ? QSizeF(root.viewBox[2], root.viewBox[3]) : QSizeF();
        const auto side = [&root](const char* name, int share, double other) {
            return share ? other : root.lengths.value(QString::fromLatin1(name), other);
        };
        const double width = side("width", root.shares.width(), box.width());
        const double height = side("height", root.shares.height(), box.height());
        if (hasBox != !root.viewBox.isEmpty() ||
            (hasBox && (box.width() < 1e-2 || box.height() < 1e-2)) ||
            !VyPreviewLimits::allowsPicture(std::lround(width), std::lround(height)))
            return false;
        m_drawing.size = drawn(width, height);
        const QSizeF units = hasBox ? box : QSizeF(width, height);
        root.style.scale *= std::max(m_drawing.size.width() / units.width(),
                                     m_drawing.size.height() / units.height());
        return true;
    }

    bool takeText()
    {
        const QString& name = m_open.back().name;
        if (name == QLatin1String("title") || name == QLatin1String("desc"))
            return true;
        return isTextElement(name) && pay(m_xml.text().size() * VySvgCost::letterPrice);
    }

    bool pay(double cost)
    {
        m_cost += cost;
        return m_cost <= VySvgCost::most;
    }

    struct OpenElement
    {
        QString name;
        VySvgCost::Style style;
    };

    QXmlStreamReader m_xml;
    Drawing m_drawing;
    std::vector<OpenElement> m_open;
    double m_cost = 0;
};

} // namespace

Drawing check(const QByteArray& svg)
{
    return svg.size() <= mostBytes && !svg.contains('\0') ? Reader(svg).read() : Drawing();
}

bool canBegin(const QByteArray& beginning, qint64 size)
{
    if (size > mostBytes || beginning.contains('\0'))
        return false;
    return beginning.size() == size || Reader(beginning).canGoOn();
}

} // namespace VySvgCheck
