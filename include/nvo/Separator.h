#pragma once

#include <nvo/Export.h>

#include <QWidget>

namespace NVO {

class Label;

/**
 * A vertical rule broken by a word, between two alternatives.
 *
 * The sheet of ElementSeparator gives the two lines, children with the object name "line", their width and
 * colour; the word is an NVO::Label with the object name "label".
 */
class NVO_EXPORT Separator : public QWidget
{
    Q_OBJECT

public:
    /** A separator that says "oder". */
    explicit Separator(QWidget *parent = nullptr);
    explicit Separator(const QString &text, QWidget *parent = nullptr);

    /** The word, which may be html. */
    void setText(const QString &text);

    /** The word as the label has it, see Label::text(). */
    QString text() const;

private:
    QWidget *addLine();

    QWidget *m_line1;
    Label *m_label;
    QWidget *m_line2;
};

} // namespace NVO
