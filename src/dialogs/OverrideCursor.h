#pragma once

#include <QCursor>

/**
 * At most one override cursor of the application, which goes with its owner.
 *
 * The application has one stack of override cursors for everybody. This one is never laid over one of
 * somebody else, whose cursor (of waiting, say) tells more, and it leaves the stack without those that were
 * laid over it in the meantime.
 */
class OverrideCursor
{
public:
    OverrideCursor() = default;
    ~OverrideCursor() { clear(); }
    OverrideCursor(const OverrideCursor &) = delete;
    OverrideCursor &operator=(const OverrideCursor &) = delete;

    void show(Qt::CursorShape shape);
    void clear();

private:
    bool isOnTop() const;

    bool m_overridden = false;
    Qt::CursorShape m_shape = Qt::ArrowCursor;
};
