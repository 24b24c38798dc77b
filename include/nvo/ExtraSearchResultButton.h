#pragma once

#include <nvo/Export.h>
#include <nvo/OverviewButtonBase.h>

namespace NVO {

class Label;

/**
 * A small tile with one centred text, for what follows a list of search results, such as "all 48 hits". It is
 * at least 40 pixels high. The text is html, see Label. The sheet is that of ElementOverviewButton.
 */
class NVO_EXPORT ExtraSearchResultButton : public OverviewButtonBase
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    explicit ExtraSearchResultButton(QWidget *parent = nullptr);

    /** Hides that of QAbstractButton, which is not shown. */
    void setText(const QString &text);
    QString text() const;

    QSize sizeHint() const override;

private:
    void initStyleSheet() override;

    Label *m_textLabel;
};

} // namespace NVO
