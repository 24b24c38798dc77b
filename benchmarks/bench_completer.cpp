// What a key costs while suggestions show, beside Qt's completer on the same rows.

#include "completer/CompleterProxyModel.h"

#include <nvo/CompleterSourceModel.h>
#include <nvo/LineEditWithButton.h>

#include <benchmark/benchmark.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QLocale>
#include <QStringListModel>

#include <algorithm>

namespace {

constexpr int rowsOnScreen = 20;
constexpr int fieldWidth = 300;

/** What the user types: a name, back to its beginning, another one. */
const char *const keys[] = {"m",  "me", "mei", "meie", "meier", "meie",   "mei",
                            "me", "m",  "mü",  "mül",  "müll",  "müller", "müller a",
                            "1",  "10", "104", "1047", "b",     "be",     "ber"};

QString rowName(int row)
{
    static const QStringList first{"Anna", "Bernd", "Clara", "Dieter", "Eva",
                                   "Jörg", "Karin", "Max",   "Sören"};
    static const QStringList last{"Müller", "Meier",   "Schmidt", "Weiß",   "Maier", "Bäcker",
                                  "Koch",   "Richter", "Wolf",    "Krämer", "Vogt"};
    return last.at(row * 7 % last.size()) + ", " + first.at(row * 5 % first.size()) + ' '
           + QString::number(10000 + row);
}

QString rowTown(int row)
{
    static const QStringList towns{"Nürnberg", "Bamberg", "Hof", "Köln", "Berlin", "Essen", "Mainz"};
    return towns.at(row * 3 % towns.size());
}

NVO::CompleterDataRow makeRow(NVO::CompleterDataRow::Type type, const QString &name, const QString &town)
{
    NVO::CompleterDataRow row;
    row.setType(type);
    row.addColumn(name, QString());
    row.addColumn(town, QString());
    return row;
}

NVO::CompleterData makeData(int rows)
{
    using Row = NVO::CompleterDataRow;
    NVO::CompleterData data;
    data.setHeaders({"Name", "Ort"});
    data.setTitle("Vorschläge");
    data.addRow(makeRow(Row::MainCaption, "Zuletzt verwendet", QString()));
    for (int row = 0; row < rows; ++row) {
        if (row == 20)
            data.addRow(makeRow(Row::SubCaption, "Mandanten", QString()));
        data.addRow(makeRow(row < 20 ? Row::DataRemovable : Row::Data, rowName(row), rowTown(row)));
    }
    return data;
}

/** The C locale of a build machine has no collation. Qt takes that of the default locale at the first call.
 */
void collateAsUsersDo()
{
    const QLocale locale;
    QLocale::setDefault(QLocale(QLocale::German));
    benchmark::DoNotOptimize(QString::localeAwareCompare(QStringLiteral("a"), QStringLiteral("b")));
    QLocale::setDefault(locale);
}

/** Something that suggests rows for a text. */
class Suggestions
{
public:
    virtual ~Suggestions() = default;
    /** Begins anew: nothing is kept of what was typed before. */
    virtual void reset() = 0;
    virtual void type(const QString &text) = 0;
};

/** Our models, asked for what a view asks that is expanded and sorted. */
class OurModels : public Suggestions
{
public:
    explicit OurModels(int rows)
        : m_data(makeData(rows))
        , m_source(nullptr)
        , m_proxy(nullptr)
    {
        collateAsUsersDo();
        m_proxy.setSourceModel(&m_source);
        m_proxy.sort(0, Qt::DescendingOrder);
    }

    void reset() override
    {
        m_proxy.setFilterText(QString());
        m_source.setMatchingText(QString());
        m_source.setCompleterData(m_data);
        readRows();
    }

    void type(const QString &text) override
    {
        m_proxy.setFilterText(text);
        m_source.setMatchingText(text);
        readRows();
    }

private:
    void readRows() const
    {
        for (int caption = 0; caption < m_proxy.rowCount(); ++caption) {
            const QModelIndex parent = m_proxy.index(caption, 0);
            for (int row = 0; row < std::min(m_proxy.rowCount(parent), rowsOnScreen); ++row) {
                for (int column = 0; column < 2; ++column)
                    benchmark::DoNotOptimize(m_proxy.index(row, column, parent).data());
            }
        }
    }

    NVO::CompleterData m_data;
    NVO::CompleterSourceModel m_source;
    NVO::CompleterProxyModel m_proxy;
};

/** Qt's completer, which neither groups nor sorts, on the joined texts of the rows. */
class QtModels : public Suggestions
{
public:
    explicit QtModels(int rows)
    {
        for (int row = 0; row < rows; ++row)
            m_rows.append(rowName(row) + ' ' + rowTown(row));
        m_completer.setFilterMode(Qt::MatchContains);
        m_completer.setCaseSensitivity(Qt::CaseInsensitive);
    }

    void reset() override { m_completer.setModel(new QStringListModel(m_rows, &m_completer)); }

    void type(const QString &text) override
    {
        m_completer.setCompletionPrefix(text);
        const QAbstractItemModel *const model = m_completer.completionModel();
        for (int row = 0; row < std::min(model->rowCount(), rowsOnScreen); ++row)
            benchmark::DoNotOptimize(model->index(row, 0).data());
    }

protected:
    QCompleter m_completer;

private:
    QStringList m_rows;
};

/** Our field with its popup, until both are painted. */
class OurPopup : public Suggestions
{
public:
    explicit OurPopup(int rows)
        : m_data(makeData(rows))
    {
        collateAsUsersDo();
        m_field.resize(fieldWidth, 25);
        m_field.show();
    }

    void reset() override
    {
        m_field.setUsername(QString());
        m_field.setDataForCompleter(m_data);
        m_field.showCompleter();
        QApplication::processEvents();
    }

    void type(const QString &text) override
    {
        m_field.setUsername(text);
        QApplication::processEvents();
    }

private:
    NVO::CompleterData m_data;
    NVO::LineEditWithButton m_field;
};

/** A field of Qt with the popup of its completer, which is a list without columns. */
class QtPopup : public QtModels
{
public:
    explicit QtPopup(int rows)
        : QtModels(rows)
    {
        m_field.resize(fieldWidth, 25);
        m_completer.setWidget(&m_field);
        m_field.show();
    }

    void type(const QString &text) override
    {
        m_field.setText(text);
        m_completer.setCompletionPrefix(text);
        m_completer.complete();
        QApplication::processEvents();
    }

private:
    QLineEdit m_field;
};

struct KeyTimes
{
    double mean = 0;
    double worst = 0;
};

/** One time through the keys, in seconds. */
KeyTimes typeKeys(Suggestions &suggestions)
{
    KeyTimes times;
    suggestions.reset();
    for (const char *const text : keys) {
        const QString typed = QString::fromUtf8(text);
        QElapsedTimer timer;
        timer.start();
        suggestions.type(typed);
        const double seconds = double(timer.nsecsElapsed()) * 1e-9;
        times.mean += seconds / double(std::size(keys));
        times.worst = std::max(times.worst, seconds);
    }
    return times;
}

template <typename Models>
void key(benchmark::State &state, double KeyTimes::*figure, int rows)
{
    Models models(rows);
    for (auto _ : state)
        state.SetIterationTime(typeKeys(models).*figure);
}

template <typename Ours, typename Peer>
void addCases(const std::string &name, const std::string &peer)
{
    for (const int rows : {10000, 100000}) {
        for (const auto &[figure, member] :
             {std::pair{"mean", &KeyTimes::mean}, std::pair{"worst", &KeyTimes::worst}}) {
            const std::string prefix = name + "/" + figure + "/" + std::to_string(rows) + "/";
            for (const auto &[who, run] :
                 {std::pair{std::string("ours"), &key<Ours>}, std::pair{peer, &key<Peer>}}) {
                benchmark::RegisterBenchmark((prefix + who).c_str(), run, member, rows)
                    ->UseManualTime()
                    ->Unit(benchmark::kMicrosecond);
            }
        }
    }
}

const bool areAdded = [] {
    addCases<OurModels, QtModels>("completer/models", "unsorted");
    addCases<OurPopup, QtPopup>("completer/popup", "q_completer");
    return true;
}();

} // namespace
