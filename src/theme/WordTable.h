#pragma once

#include <QChar>
#include <QHash>
#include <QString>
#include <QStringView>
#include <QVector>

#include <array>

namespace NVO {

/**
 * The words of the style-sheet dialect with the texts that stand for them.
 *
 * Replacing a word in a text and scanning its replacement again gives the same result as replacing it at
 * once by a value whose own words are replaced already: a replacement always stands between characters
 * that belong to no word. So all values are expanded when a pass is added, each once, and a text needs a
 * single scan whatever the number of passes.
 */
class WordTable
{
public:
    /** A letter, a digit or an underscore. */
    static bool isWordCharacter(QChar character);

    /**
     * Adds a pass of replacements that runs on the result of those before it. A word that comes up again
     * in its own expansion stands there as it is. A value whose expansion grows without measure stays as
     * it was given.
     */
    void addPass(const QHash<QString, QString> &words);

    /**
     * \a text with all its words replaced, but for a word that touches the very end. A text that would
     * grow beyond what a string can hold stays as it is.
     */
    QString expand(const QString &text) const;

private:
    struct Word
    {
        QString word;
        QString value;
    };

    const QString *find(QStringView word) const;
    void insert(const QString &word, const QString &value);

    QVector<Word> m_words;
    QHash<QStringView, int> m_index;
    // For the first character of a word (its low seven bits) one bit for each length, the last one for
    // all longer ones: most words of a sheet are known as foreign from this alone.
    std::array<quint64, 128> m_lengths{};
};

} // namespace NVO
