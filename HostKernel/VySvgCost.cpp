// SPDX-License-Identifier: MIT
#include "VySvgCost.h"

#include <QPointF>
#include <QString>

#include <algorithm>
#include <cmath>

namespace VySvgCost {

namespace {

// Measured with Qt 5.15.8 at 256 pixels a side, in the worst of the cases. Qt fills a
// long outline in bands, through all of it for each, when its cells outgrow a buffer.
constexpr double outlinePixelPrice = 300;
constexpr double longOutlinePixelPrice = 4e3;
constexpr double longOutline = 5000; // pixels
constexpr double areaPixelPrice = 10;
constexpr double dashPrice = 2e3;

double outlinePrice(double pixels)
{
    return pixels * outlinePixelPrice + std::max(0.0, pixels - longOutline) * longOutlinePixelPrice;
}

bool isSpace(QChar letter)
{
    return letter == QLatin1Char(' ') || letter == QLatin1Char('\t') ||
           letter == QLatin1Char('\n') || letter == QLatin1Char('\r');
}

bool isDigit(QChar letter)
{
    return letter >= QLatin1Char('0') && letter <= QLatin1Char('9');
}

class Scanner
{
public:
    explicit Scanner(QStringView text)
        : m_text(text)
    {}

    QChar peek() const { return m_at < m_text.size() ? m_text.at(m_at) : QChar(); }
    bool atEnd() const { return m_at == m_text.size(); }
    void skipSpace()
    {
        while (isSpace(peek()))
            ++m_at;
    }
    void skipSeparator()
    {
        skipSpace();
        if (take(QLatin1Char(',')))
            skipSpace();
    }
    bool take(QChar letter)
    {
        const bool isThere = !atEnd() && peek() == letter;
        m_at += isThere ? 1 : 0;
        return isThere;
    }
    QStringView takeWord()
    {
        const auto start = m_at;
        while (peek().isLetter())
            ++m_at;
        return m_text.mid(start, m_at - start);
    }
    // False when there is no number, or one that is too large.
    bool takeNumber(double& number)
    {
        const auto start = m_at;
        take(QLatin1Char('-')) || take(QLatin1Char('+'));
        takeDigits();
        if (take(QLatin1Char('.')))
            takeDigits();
        const auto beforeExponent = m_at;
        if (take(QLatin1Char('e')) || take(QLatin1Char('E'))) {
            take(QLatin1Char('-')) || take(QLatin1Char('+'));
            if (!isDigit(peek()))
                m_at = beforeExponent;
            takeDigits();
        }
        bool isNumber = false;
        number = m_text.mid(start, m_at - start).toString().toDouble(&isNumber);
        return isNumber && std::abs(number) <= largestNumber;
    }
    bool takeNumbers(QVector<double>& numbers)
    {
        double number = 0;
        skipSpace();
        while (isDigit(peek()) || peek() == QLatin1Char('-') || peek() == QLatin1Char('+') ||
               peek() == QLatin1Char('.')) {
            if (!takeNumber(number))
                return false;
            numbers.append(number);
            skipSeparator();
        }
        return true;
    }

private:
    void takeDigits()
    {
        while (isDigit(peek()))
            ++m_at;
    }

    QStringView m_text;
    qsizetype m_at = 0;
};

// Counts the values that a letter of path data takes; 0 for one that is none.
int valuesOf(char command)
{
    switch (command) {
    case 'M':
    case 'L':
    case 'T':
        return 2;
    case 'H':
    case 'V':
        return 1;
    case 'S':
    case 'Q':
        return 4;
    case 'C':
        return 6;
    case 'A':
        return 7;
    default:
        return 0;
    }
}

class OutlineBuilder
{
public:
    explicit OutlineBuilder(Outline& outline)
        : m_outline(outline)
    {}

    void add(char command, bool isRelative, const double* values)
    {
        const QPointF base = isRelative ? m_at : QPointF();
        if (command == 'M')
            return moveTo(base + QPointF(values[0], values[1]));
        if (command == 'H')
            return lineTo({base.x() + values[0], m_at.y()});
        if (command == 'V')
            return lineTo({m_at.x(), base.y() + values[0]});
        if (command == 'A')
            return arcTo(std::max(std::abs(values[0]), std::abs(values[1])),
                         base + QPointF(values[5], values[6]));
        // The polygon of a curve's control points is as long as the curve at least.
        for (int i = 0; i < valuesOf(command); i += 2)
            lineTo(base + QPointF(values[i], values[i + 1]));
        if (command == 'S' || command == 'T') // and one more, which mirrors the last
            m_outline.lengths.append(m_lastLength);
    }
    void close() { lineTo(m_start); }

private:
    void moveTo(QPointF point)
    {
        if (!m_isEmpty)
            close(); // as a fill does
        m_start = point;
        m_at = point;
        enclose(point, 0);
    }
    void lineTo(QPointF point)
    {
        m_lastLength = std::hypot(point.x() - m_at.x(), point.y() - m_at.y());
        m_outline.lengths.append(m_lastLength);
        enclose(point, 0);
        m_at = point;
    }
    // Radii that are too small are as large as they must be.
    void arcTo(double radius, QPointF point)
    {
        const double chord = std::hypot(point.x() - m_at.x(), point.y() - m_at.y());
        const double reach = 2 * std::max(radius, chord);
        for (int quarter = 0; quarter < 4; ++quarter)
            m_outline.lengths.append(reach);
        enclose(m_at, reach);
        enclose(point, reach);
        m_at = point;
    }
    void enclose(QPointF point, double reach)
    {
        const QPointF corner(reach, reach);
        m_leftTop = m_isEmpty ? point - corner
                              : QPointF(std::min(m_leftTop.x(), point.x() - reach),
                                        std::min(m_leftTop.y(), point.y() - reach));
        m_rightBottom = m_isEmpty ? point + corner
                                  : QPointF(std::max(m_rightBottom.x(), point.x() + reach),
                                            std::max(m_rightBottom.y(), point.y() + reach));
        m_isEmpty = false;
        m_outline.box = QRectF(m_leftTop, m_rightBottom);
    }

    Outline& m_outline;
    QPointF m_start;
    QPointF m_at;
    double m_lastLength = 0;
    QPointF m_leftTop;
    QPointF m_rightBottom;
    bool m_isEmpty = true;
};

// How much longer a line can become by one transform; negative when it is none.
double scaleOf(QStringView name, const QVector<double>& v)
{
    const bool isShort = v.size() == 1 || v.size() == 2;
    if (name == QLatin1String("matrix") && v.size() == 6)
        return std::hypot(std::hypot(v[0], v[1]), std::hypot(v[2], v[3]));
    if (name == QLatin1String("scale") && isShort)
        return std::max(std::abs(v.first()), std::abs(v.last()));
    if ((name == QLatin1String("translate") && isShort) ||
        (name == QLatin1String("rotate") && (v.size() == 1 || v.size() == 3)))
        return 1;
    if ((name == QLatin1String("skewX") || name == QLatin1String("skewY")) && v.size() == 1 &&
        std::abs(v.first()) < 80)
        return 6;
    return -1;
}

} // namespace

bool readNumbers(QStringView text, QVector<double>& numbers)
{
    Scanner scanner(text);
    return scanner.takeNumbers(numbers) && scanner.atEnd();
}

bool readScale(QStringView text, double& scale)
{
    Scanner scanner(text);
    scanner.skipSpace();
    while (!scanner.atEnd()) {
        const QStringView name = scanner.takeWord();
        QVector<double> values;
        scanner.skipSpace();
        if (!scanner.take(QLatin1Char('(')) || !scanner.takeNumbers(values) ||
            !scanner.take(QLatin1Char(')')))
            return false;
        const double entry = scaleOf(name, values);
        if (entry < 0)
            return false;
        scale *= entry;
        scanner.skipSeparator();
    }
    return true;
}

bool readPath(QStringView text, Outline& outline)
{
    Scanner scanner(text);
    OutlineBuilder builder(outline);
    scanner.skipSpace();
    while (!scanner.atEnd()) {
        const char letter = scanner.peek().toLatin1();
        const char command = letter >= 'a' ? static_cast<char>(letter - 'a' + 'A') : letter;
        QVector<double> values;
        scanner.take(scanner.peek());
        if (!scanner.takeNumbers(values))
            return false;
        const int each = valuesOf(command);
        if (command == 'Z' && values.isEmpty())
            builder.close();
        else if (each == 0 || values.isEmpty() || values.size() % each != 0)
            return false;
        for (int i = 0; i < values.size(); i += each) // corners after a move are lines
            builder.add(i > 0 && command == 'M' ? 'L' : command, letter != command,
                        values.constData() + i);
    }
    return true;
}

Outline polygon(const QVector<double>& numbers)
{
    Outline outline;
    OutlineBuilder builder(outline);
    for (int i = 0; i + 1 < numbers.size(); i += 2)
        builder.add(i == 0 ? 'M' : 'L', false, numbers.constData() + i);
    builder.close();
    return outline;
}

double shape(const Outline& outline, const Style& style, double canvas)
{
    // Whatever lies outside is cut off.
    const double longest = 4 * canvas;
    const double width = std::min(style.strokeWidth * style.scale, longest);
    double length = 0;
    double wholeLength = 0;
    for (const double segment : outline.lengths) {
        length += std::min(segment * style.scale, longest);
        wholeLength += segment;
    }
    const auto side = [&](double units, double more) {
        return std::min(units * style.scale + more, canvas);
    };
    const auto area = [&](double more) {
        return side(outline.box.width(), more) * side(outline.box.height(), more);
    };
    double cost = elementPrice;
    if (style.isFilled)
        cost += outlinePrice(length) + area(0) * areaPixelPrice;
    if (!style.isStroked)
        return cost;
    const double dashes = style.dashPeriod > 0 ? 2 * wholeLength / style.dashPeriod : 0;
    const double ends = (2 * outline.lengths.size() + dashes) * 2 * width;
    return cost + outlinePrice(2 * length + ends) + area(2 * width) * areaPixelPrice +
           dashes * dashPrice;
}

} // namespace VySvgCost
