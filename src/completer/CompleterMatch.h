#pragma once

#include <QRegularExpression>
#include <QString>
#include <QStringMatcher>

namespace NVO {

/** Puts each character's simple case folding in its place; surrogates stay as they are. */
void foldInPlace(QString &text);

bool hasSurrogates(const QString &text);

/** A typed text, made ready to be marked in many others. */
class CompleterMatch
{
public:
    explicit CompleterMatch(const QString &text);

    /** \a text with each match between bold tags, whatever its case; the match keeps its own. */
    QString marked(const QString &text) const;

private:
    QString markedByExpression(const QString &text) const;

    QRegularExpression m_expression; // decides what matches
    QStringMatcher m_matcher;        // agrees with it if m_isSimple, and is faster
    int m_length;
    bool m_isSimple;
};

} // namespace NVO
