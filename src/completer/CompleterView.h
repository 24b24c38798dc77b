#pragma once

#include <QTreeView>

namespace NVO {

/** The list in the popup of suggestions: captions that are always open, and entries, for the mouse alone. */
class CompleterView : public QTreeView
{
    Q_OBJECT

public:
    explicit CompleterView(QWidget *parent);

    /** The rows of the data behind the model, with captions and with what is filtered out; 0 without data. */
    int dataRowCount() const;

    /** Opens all captions and lets each take the width of the list, both of which a reset makes it forget. */
    void openCaptions();

    void reset() override;

private:
    bool m_captionsOpen = false;
};

} // namespace NVO
