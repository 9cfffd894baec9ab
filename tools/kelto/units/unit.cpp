// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "units/unit.h"

#include "units/unitbase.h"
#include "units/unitsymbols.h"

#include <QHash>
#include <QMutex>
#include <QMutexLocker>
#include <QRegularExpression>

#include <cmath>

namespace {

/// Longer texts are no units. It also bounds how deep parentheses can be nested.
constexpr int mostCharacters = 100;
/// No quantity has a larger exponent, not even on the way to it.
constexpr double mostPower = 100;

using MaybeUnit = std::optional<Unit>;

MaybeUnit raised(MaybeUnit unit, double power)
{
    if (!unit || !(std::abs(power) <= mostPower))
        return std::nullopt;
    unit->factor = std::pow(unit->factor, power);
    for (double &exponent : unit->dimension)
        exponent *= power;
    return unit;
}

MaybeUnit product(MaybeUnit a, const MaybeUnit &b)
{
    if (!a || !b)
        return std::nullopt;
    a->factor *= b->factor;
    for (auto base = b->dimension.cbegin(); base != b->dimension.cend(); ++base)
        a->dimension[base.key()] += base.value();
    return a;
}

/// Words and habits that no rule of its own is worth, as units that are read anyway.
QString withoutHabits(QString text)
{
    struct Habit
    {
        QRegularExpression pattern;
        QString replacement;
    };
    const auto habit = [](const char *pattern, const char *replacement) {
        return Habit { QRegularExpression(QString::fromUtf8(pattern)),
                       QString::fromUtf8(replacement) };
    };
    static const QVector<Habit> habits {
        // Conductivities have kelvins, no thousandths of one.
        habit("/mK(?![\\p{L}\\d])", "/(m·K)"),
        // Levels are heights above something.
        habit("^(k?m|ft)\\s*(ü\\.? ?(NN|NHN|M|A)\\.?|a\\.?s\\.?l\\.?|AMSL|NHN|NN)$", "\\1"),
        // Columns of a liquid.
        habit("^([mc]?m|in|ft)\\.?\\s+(H2O|W[SCG]|w\\.?[cg]\\.?)$", "\\1H2O"),
        habit("^([mc]m|in)\\.?\\s+Hg$", "\\1Hg"),
        habit("\\bsq\\.?\\s*([kmc]?m|in|ft|yd|mi)\\b\\.?", "\\1^2"),
        habit("\\bcu\\.?\\s*([mc]?m|in|ft|yd)\\b\\.?", "\\1^3"),
        // A power belongs to the last of two symbols; "Nm^3" is a cubic metre of gas.
        habit("(?<!\\p{L})([GMkm]?N|k?g|t)([mcd]?m)(?=\\^?([245679]|-\\d))", "\\1·\\2"),
        habit("(?<!\\p{L})(kg)([mcd]?m)(?=\\^?3)", "\\1·\\2"),
        habit("^/\\s*(?=.)", "1/"),
    };
    for (const Habit &each : habits)
        text.replace(each.pattern, each.replacement);
    return text;
}

/// Superscripts as powers, all letters in their usual form, and without brackets around.
QString normalised(const QString &text)
{
    static const QString superscripts = QStringLiteral("⁰¹²³⁴⁵⁶⁷⁸⁹⁻⁺");
    static const QString plain = QStringLiteral("0123456789-+");
    QString result;
    bool isRaised = false;
    for (const QChar character : text) {
        const int position = superscripts.indexOf(character);
        if (position >= 0 && !isRaised)
            result += QLatin1Char('^');
        isRaised = position >= 0;
        result += isRaised ? plain.at(position) : character;
    }
    result.replace(QStringLiteral("½"), QStringLiteral("^0.5"));
    result.replace(QStringLiteral("º"), QStringLiteral("°"));
    result = result.normalized(QString::NormalizationForm_KC).trimmed();
    result.replace(QStringLiteral("−"), QStringLiteral("-"));
    result.replace(QStringLiteral("**"), QStringLiteral("^"));
    if (result.startsWith(QLatin1Char('[')) && result.endsWith(QLatin1Char(']')))
        result = result.mid(1, result.size() - 2).trimmed();
    return result;
}

bool isLetterOfSymbol(QChar character)
{
    return character.isLetter() || QStringLiteral("°%‰′'\"$€£¥").contains(character);
}

MaybeUnit unitOfMeaning(const QString &meaning);

MaybeUnit symbolItself(const QString &symbol)
{
    return Unit { 1, { { symbol, 1 } } };
}

/// The unit of a symbol, alone or with a prefix.
MaybeUnit symbolUnit(const QString &symbol)
{
    if (symbol == QLatin1String("one"))
        return Unit();
    if (symbol == QLatin1String("currency"))
        return Unit { 1, { { symbol, 1 } } };
    if (symbol.isEmpty())
        return std::nullopt;
    const QString meaning = meaningOfSymbol(symbol);
    if (!meaning.isNull())
        return unitOfMeaning(meaning);
    if (const MaybeUnit known = unitOfSymbol(symbol))
        return known;
    if (symbol.startsWith(QStringLiteral("平方")))
        return raised(symbolUnit(symbol.mid(2)), 2);
    if (symbol.startsWith(QStringLiteral("立方")))
        return raised(symbolUnit(symbol.mid(2)), 3);
    const double factor = factorOfPrefix(symbol);
    const QString prefixed = factor > 0 ? meaningOfPrefixableSymbol(symbol.mid(1)) : QString();
    return prefixed.isNull() ? std::nullopt : product(Unit { factor, {} }, unitOfMeaning(prefixed));
}

/// Reads a normalised text from front to back.
class UnitReader
{
public:
    enum Symbols { Defined, Kept };

    explicit UnitReader(const QString &text, Symbols symbols = Defined)
        : m_text(text)
        , m_symbols(symbols)
    {
    }

    MaybeUnit readAll()
    {
        const MaybeUnit unit = readQuotient();
        return isAtEnd() ? unit : std::nullopt;
    }

private:
    bool isAtEnd() const { return m_at >= m_text.size(); }
    QChar next() const { return m_text.at(m_at); }

    bool skip(QChar character)
    {
        skipSpaces();
        const bool isThere = !isAtEnd() && next() == character;
        m_at += isThere ? 1 : 0;
        return isThere;
    }
    void skipSpaces()
    {
        while (!isAtEnd() && next().isSpace())
            ++m_at;
    }

    /// What @p pattern matches here, which is then skipped.
    QString take(const QRegularExpression &pattern)
    {
        const QRegularExpressionMatch match
            = pattern.match(m_text, m_at, QRegularExpression::NormalMatch,
                            QRegularExpression::AnchoredMatchOption);
        m_at += match.capturedLength();
        return match.captured();
    }

    /// Products that are divided by products.
    MaybeUnit readQuotient()
    {
        MaybeUnit unit = readProduct();
        while (unit && (skip(u'/') || skip(u'÷') || skipWord(QStringLiteral("per"))))
            unit = product(unit, raised(readProduct(), -1));
        return unit;
    }

    bool skipWord(const QString &word)
    {
        skipSpaces();
        const bool isThere = m_text.midRef(m_at).startsWith(word + QLatin1Char(' '));
        m_at += isThere ? word.size() : 0;
        return isThere;
    }

    MaybeUnit readProduct()
    {
        MaybeUnit unit = readPower();
        while (unit && (skipTimes() || isFactorNext()))
            unit = product(unit, readPower());
        return unit;
    }

    bool skipTimes()
    {
        skipSpaces();
        static const QString signs = QStringLiteral("·⋅∙•*×.x-");
        if (isAtEnd() || !signs.contains(next()))
            return false;
        // "x" is a letter as well, and "-" a sign.
        static const QRegularExpression times(QStringLiteral("x(?=\\s)|-(?=\\p{L})|[^x-]"));
        return !take(times).isEmpty();
    }

    /// Whether something stands here that is multiplied without a sign.
    bool isFactorNext()
    {
        const int before = m_at;
        const bool isWord = skipWord(QStringLiteral("per"));
        m_at = before;
        skipSpaces();
        return !isWord && !isAtEnd()
            && (isLetterOfSymbol(next()) || next().isDigit() || next() == u'(' || next() == u'√');
    }

    /// A number, a symbol or parentheses, with a power behind it.
    MaybeUnit readPower()
    {
        skipSpaces();
        if (isAtEnd())
            return std::nullopt;
        if (skip(u'√'))
            return raised(readPower(), 0.5);
        static const QRegularExpression number(
            QStringLiteral("[0-9]+(\\.[0-9]+)?([eE][-+]?[0-9]+)?"));
        const QString digits = take(number);
        MaybeUnit unit;
        if (!digits.isEmpty())
            unit = Unit { digits.toDouble(), {} };
        else
            unit = skip(u'(') ? readParentheses() : readSymbol();
        return raised(unit, readExponent(digits.isEmpty()));
    }

    MaybeUnit readParentheses()
    {
        const MaybeUnit unit = readQuotient();
        return skip(u')') ? unit : std::nullopt;
    }

    MaybeUnit readSymbol()
    {
        for (const UnitSpelling &spelling : longSpellings()) {
            const int end = m_at + spelling.text.size();
            const bool isPartOfLonger = end < m_text.size() && (m_text.at(end).isLetterOrNumber());
            if (m_text.midRef(m_at).startsWith(spelling.text) && !isPartOfLonger) {
                m_at = end;
                return m_symbols == Kept ? symbolItself(spelling.text)
                                         : unitOfMeaning(spelling.meaning);
            }
        }
        const int begin = m_at;
        while (!isAtEnd() && isLetterOfSymbol(next()))
            ++m_at;
        const QString symbol = m_text.mid(begin, m_at - begin);
        if (symbol.isEmpty())
            return std::nullopt;
        return m_symbols == Kept ? symbolItself(symbol) : symbolUnit(symbol);
    }

    /// 1 without an exponent. Behind a symbol it may stand without a "^".
    double readExponent(bool isBehindSymbol)
    {
        static const QRegularExpression raisedTo(
            QStringLiteral("\\^\\s*(\\(\\s*([-+]?[0-9.]+)(\\s*/"
                           "\\s*([0-9.]+))?\\s*\\)|([-+]?[0-9]+(\\.[0-9]+)?))"));
        static const QRegularExpression digits(QStringLiteral("[-+]?[0-9]+"));
        const QRegularExpressionMatch match
            = raisedTo.match(m_text, m_at, QRegularExpression::NormalMatch,
                             QRegularExpression::AnchoredMatchOption);
        if (!match.hasMatch()) {
            const QString plain = isBehindSymbol ? take(digits) : QString();
            return plain.isEmpty() ? 1 : plain.toDouble();
        }
        m_at += match.capturedLength();
        if (match.capturedLength(5) > 0)
            return match.captured(5).toDouble();
        const double divisor = match.capturedLength(4) > 0 ? match.captured(4).toDouble() : 1;
        return match.captured(2).toDouble() / divisor;
    }

    const QString m_text;
    const Symbols m_symbols;
    int m_at = 0;
};

MaybeUnit unitOfMeaning(const QString &meaning)
{
    return UnitReader(meaning).readAll();
}

MaybeUnit readUnit(const QString &text, UnitReader::Symbols symbols)
{
    const QString plain = normalised(text);
    if (isNoUnit(text.trimmed()) || isNoUnit(plain))
        return Unit();
    const bool areKept = symbols == UnitReader::Kept;
    MaybeUnit unit = UnitReader(areKept ? plain : withoutHabits(plain), symbols).readAll();
    if (!unit || !std::isfinite(unit->factor) || unit->factor <= 0)
        return std::nullopt;
    for (auto base = unit->dimension.begin(); base != unit->dimension.end();)
        base = qFuzzyIsNull(base.value()) ? unit->dimension.erase(base) : base + 1;
    return unit;
}

} // namespace

bool areUnitsKnown()
{
    return unitOfSymbol(QStringLiteral("m")).has_value();
}

std::optional<Unit> unitOf(const QString &text)
{
    if (text.size() > mostCharacters)
        return std::nullopt;
    // Modules have few units, and each of them often.
    static QMutex mutex;
    static QHash<QString, MaybeUnit> known;
    const QMutexLocker locker(&mutex);
    const auto found = known.constFind(text);
    if (found != known.constEnd())
        return found.value();
    return known.insert(text, areUnitsKnown() ? readUnit(text, UnitReader::Defined) : std::nullopt)
        .value();
}

bool isSameUnit(const QString &text, const QString &other)
{
    if (text == other)
        return true;
    if (qMax(text.size(), other.size()) > mostCharacters)
        return false;
    const MaybeUnit first = readUnit(text, UnitReader::Kept);
    const MaybeUnit second = readUnit(other, UnitReader::Kept);
    return first && second && first->dimension == second->dimension
        && qFuzzyCompare(first->factor, second->factor);
}
