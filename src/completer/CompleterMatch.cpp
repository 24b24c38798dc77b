#include "completer/CompleterMatch.h"

#include <algorithm>

namespace NVO {

namespace {

const QLatin1String opening("<b>");
const QLatin1String closing("</b>");

/** The expression engine and Qt fold these in the same way, and neither gives them a meaning of their own. */
bool isSimple(QChar c)
{
    return c.unicode() >= 0x20 && c.unicode() < 0x250;
}

QRegularExpression expressionFor(const QString &text)
{
    return QRegularExpression(QLatin1Char('(') + QRegularExpression::escape(text) + QLatin1Char(')'),
                              QRegularExpression::CaseInsensitiveOption);
}

} // namespace

void foldInPlace(QString &text)
{
    for (QChar &c : text) {
        if (c.unicode() >= 0x80)
            c = c.toCaseFolded();
        else if (c.unicode() >= 'A' && c.unicode() <= 'Z')
            c.unicode() += 'a' - 'A';
    }
}

bool hasSurrogates(const QString &text)
{
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.isSurrogate(); });
}

CompleterMatch::CompleterMatch(const QString &text)
    : m_expression(expressionFor(text))
    , m_matcher(text, Qt::CaseInsensitive)
    , m_length(text.size())
    , m_isSimple(std::all_of(text.begin(), text.end(), isSimple))
{}

QString CompleterMatch::marked(const QString &text) const
{
    if (m_length == 0)
        return text;
    // A text with half a surrogate pair is none that the expression engine looks into.
    if (!m_isSimple || hasSurrogates(text))
        return markedByExpression(text);
    int match = m_matcher.indexIn(text);
    if (match < 0)
        return text;
    QString result;
    int done = 0;
    for (; match >= 0; match = m_matcher.indexIn(text, done)) {
        result += text.midRef(done, match - done) + opening + text.midRef(match, m_length) + closing;
        done = match + m_length;
    }
    return result + text.midRef(done);
}

QString CompleterMatch::markedByExpression(const QString &text) const
{
    // Half a surrogate pair makes no expression.
    return m_expression.isValid() ? QString(text).replace(m_expression, QStringLiteral("<b>\\1</b>")) : text;
}

} // namespace NVO
