#include "dialogs/OverrideCursor.h"

#include <QGuiApplication>
#include <QVector>

void OverrideCursor::show(Qt::CursorShape shape)
{
    if (isOnTop()) {
        if (m_shape != shape)
            QGuiApplication::changeOverrideCursor(shape);
        m_shape = shape;
        return;
    }
    clear();
    if (QGuiApplication::overrideCursor())
        return;
    QGuiApplication::setOverrideCursor(shape);
    m_overridden = true;
    m_shape = shape;
}

void OverrideCursor::clear()
{
    if (!m_overridden)
        return;
    m_overridden = false;
    QVector<QCursor> others;
    while (const QCursor *top = QGuiApplication::overrideCursor()) {
        const bool own = top->shape() == m_shape;
        if (!own)
            others.append(*top);
        QGuiApplication::restoreOverrideCursor();
        if (own)
            break;
    }
    while (!others.isEmpty())
        QGuiApplication::setOverrideCursor(others.takeLast());
    m_shape = Qt::ArrowCursor;
}

bool OverrideCursor::isOnTop() const
{
    const QCursor *top = QGuiApplication::overrideCursor();
    return m_overridden && top && top->shape() == m_shape;
}
