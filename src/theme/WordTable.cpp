#include "theme/WordTable.h"

#include <QSet>
#include <QVarLengthArray>

#include <algorithm>

namespace NVO {

namespace {

// An expanded gradient has a few hundred characters and is two or three words deep. Values that refer to
// each other over and over can grow exponentially, and no widget would be drawn with what comes out.
constexpr int maxValueLength = 1 << 16;
constexpr int maxNesting = 100;

// No sheet comes near this; it keeps a text full of long values within what a QString can hold.
constexpr qint64 maxTextLength = 1 << 28;

constexpr std::array<bool, 128> asciiWordCharacters()
{
    std::array<bool, 128> result{};
    for (std::size_t c = '0'; c <= '9'; ++c)
        result[c] = true;
    for (std::size_t c = 'a'; c <= 'z'; ++c)
        result[c] = true;
    for (std::size_t c = 'A'; c <= 'Z'; ++c)
        result[c] = true;
    result['_'] = true;
    return result;
}

constexpr std::array<bool, 128> asciiWord = asciiWordCharacters();

/** Appends the characters of \a text from \a start up to \a end. */
void append(QString &out, const QString &text, int start, int end)
{
    out.append(text.constData() + start, end - start);
}

/** Goes through the words of a text, from the first to the last. */
class WordScanner
{
public:
    explicit WordScanner(QStringView text)
        : m_text(text.data())
        , m_size(int(text.size()))
    {}

    /** Moves on to the next word; false if there is none. */
    bool next()
    {
        m_start = m_end;
        while (m_start < m_size && !WordTable::isWordCharacter(m_text[m_start]))
            ++m_start;
        m_end = m_start;
        while (m_end < m_size && WordTable::isWordCharacter(m_text[m_end]))
            ++m_end;
        return m_start < m_end;
    }

    QStringView word() const { return QStringView(m_text + m_start, m_end - m_start); }
    int start() const { return m_start; }
    int end() const { return m_end; }
    bool atEnd() const { return m_end == m_size; }

private:
    const QChar *m_text;
    int m_size;
    int m_start = 0;
    int m_end = 0;
};

/** Expands the values of one pass. */
class ValueExpander
{
public:
    explicit ValueExpander(const QHash<QString, QString> &words)
        : m_words(words)
    {}

    QString expanded(const QString &word)
    {
        m_out.clear();
        m_open.clear();
        m_gaveUp = false;
        appendValue(word);
        return m_gaveUp ? m_words.value(word) : m_out;
    }

private:
    /**
     * Appends what stands for \a word. Returns whether that holds wherever the word stands, that is if
     * no word was left as it is because it came up again in its own expansion.
     */
    bool appendValue(const QString &word)
    {
        const QString value = m_words.value(word);
        const int outStart = m_out.size();
        int copiedUpTo = 0;
        bool complete = true;
        m_open.insert(word);
        m_gaveUp = m_open.size() > maxNesting;
        for (WordScanner scanner(value); !m_gaveUp && scanner.next();) {
            const QString inner = scanner.word().toString();
            if (!m_words.contains(inner))
                continue;
            if (m_open.contains(inner)) {
                complete = false;
                continue;
            }
            append(m_out, value, copiedUpTo, scanner.start());
            copiedUpTo = scanner.end();
            const auto known = m_known.constFind(inner);
            if (known != m_known.constEnd())
                m_out += *known;
            else
                complete &= appendValue(inner);
            m_gaveUp |= m_out.size() > maxValueLength;
        }
        if (m_gaveUp)
            return false;
        append(m_out, value, copiedUpTo, value.size());
        m_open.remove(word);
        if (complete)
            m_known.insert(word, m_out.mid(outStart));
        return complete;
    }

    const QHash<QString, QString> &m_words;
    QHash<QString, QString> m_known;
    QSet<QString> m_open;
    QString m_out;
    bool m_gaveUp = false;
};

} // namespace

bool WordTable::isWordCharacter(QChar character)
{
    const ushort code = character.unicode();
    return code < asciiWord.size() ? asciiWord[code] : character.isLetterOrNumber();
}

void WordTable::addPass(const QHash<QString, QString> &words)
{
    ValueExpander expander(words);
    WordTable pass;
    for (auto word = words.cbegin(); word != words.cend(); ++word)
        pass.insert(word.key(), expander.expanded(word.key()));

    // A value stands between characters that belong to no word: its last word does not touch the end.
    for (Word &word : m_words) {
        word.value = pass.expand(word.value + QLatin1Char(' '));
        word.value.chop(1);
    }
    for (const Word &word : qAsConst(pass.m_words)) {
        if (!find(word.word))
            insert(word.word, word.value);
    }
}

QString WordTable::expand(const QString &text) const
{
    struct Replacement
    {
        int start;
        int end;
        const QString *value;
    };
    QVarLengthArray<Replacement, 256> replacements;
    qint64 size = text.size();

    WordScanner scanner(text);
    while (scanner.next() && !scanner.atEnd()) {
        if (const QString *value = find(scanner.word())) {
            replacements.append({scanner.start(), scanner.end(), value});
            size += value->size() - scanner.word().size();
        }
    }
    if (size > maxTextLength)
        return text;

    QString result;
    result.reserve(int(size));
    int copiedUpTo = 0;
    for (const Replacement &replacement : replacements) {
        append(result, text, copiedUpTo, replacement.start);
        result += *replacement.value;
        copiedUpTo = replacement.end;
    }
    append(result, text, copiedUpTo, text.size());
    return result;
}

const QString *WordTable::find(QStringView word) const
{
    const quint64 lengths = m_lengths[word.front().unicode() & 127U];
    if ((lengths >> std::min<qsizetype>(word.size(), 63) & 1U) == 0)
        return nullptr;
    const auto index = m_index.constFind(word);
    return index == m_index.constEnd() ? nullptr : &m_words[*index].value;
}

void WordTable::insert(const QString &word, const QString &value)
{
    if (word.isEmpty())
        return;
    m_lengths[word.front().unicode() & 127U] |= quint64(1) << std::min(word.size(), 63);
    m_words.append({word, value});
    m_index.insert(m_words.last().word, m_words.size() - 1);
}

} // namespace NVO
