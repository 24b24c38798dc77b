#pragma once

#include "pages/Page.h"

#include <QVector>

namespace NVO {
class ExpandingOverviewButton;
class ExtraSearchResultButton;
class Label;
class LineEdit;
} // namespace NVO

/** A search over the whole application, whose results unfold their targets. */
class SearchPage : public Page
{
    Q_OBJECT

public:
    static QString key() { return QStringLiteral("suche"); }
    static QString title() { return QStringLiteral("Suche"); }

    SearchPage();

    int pictureWidth() const override;

private:
    struct Result
    {
        NVO::ExpandingOverviewButton *tile;
        QString words; ///< What the search looks at.
    };

    void addResults();
    void addStates();
    void addStyles();
    void filter(const QString &text);
    void showChosen(const QString &path);

    NVO::LineEdit *m_field;
    NVO::Label *m_count;
    NVO::Label *m_chosen;
    NVO::ExtraSearchResultButton *m_all;
    QVector<Result> m_results;
};
