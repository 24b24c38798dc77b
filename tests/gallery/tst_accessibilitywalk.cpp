// Every page of the gallery, as somebody meets it who works with a screen reader and the keyboard.

#include "Gallery.h"
#include "GalleryApplication.h"
#include "MainWindow.h"
#include "PageRegistry.h"
#include "TestCase.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QLineEdit>
#include <QSet>
#include <QTabBar>
#include <QTest>

namespace {

constexpr int linksOfALabel = 20; // Tab walks over the links of a text before it leaves it

const QSet<QAccessible::Role> buttonRoles{
    QAccessible::Button,      QAccessible::ButtonMenu, QAccessible::ButtonDropDown, QAccessible::CheckBox,
    QAccessible::RadioButton, QAccessible::Link,       QAccessible::PageTab};

/** The roles that fit what \a object is; empty if any fits but those that say nothing. */
QSet<QAccessible::Role> fittingRoles(const QObject *object)
{
    if (qobject_cast<const QAbstractButton *>(object))
        return buttonRoles;
    if (qobject_cast<const QLineEdit *>(object))
        return {QAccessible::EditableText};
    if (qobject_cast<const QComboBox *>(object))
        return {QAccessible::ComboBox};
    if (qobject_cast<const QAbstractSpinBox *>(object))
        return {QAccessible::SpinBox};
    if (qobject_cast<const QAbstractSlider *>(object))
        return {QAccessible::Slider, QAccessible::ScrollBar, QAccessible::Dial};
    if (qobject_cast<const QTabBar *>(object))
        return {QAccessible::PageTabList};
    if (qobject_cast<const QAbstractItemView *>(object))
        return {QAccessible::List, QAccessible::Table, QAccessible::Tree};
    return {};
}

bool roleFits(QAccessibleInterface *interface)
{
    const QSet<QAccessible::Role> roles = fittingRoles(interface->object());
    return roles.isEmpty() ? interface->role() != QAccessible::NoRole : roles.contains(interface->role());
}

QString describe(const QObject *object)
{
    QString path;
    for (; object; object = object->parent())
        path.prepend(QStringLiteral("/%1(%2)").arg(object->metaObject()->className(), object->objectName()));
    return path;
}

/** A widget with a proxy hands the focus on, and is not what is read. */
bool takesFocus(QAccessibleInterface *interface)
{
    const QAccessible::State state = interface->state();
    const auto *widget = qobject_cast<const QWidget *>(interface->object());
    return state.focusable && !state.invisible && !state.disabled && widget && !widget->focusProxy();
}

bool takesTab(const QWidget *widget)
{
    return widget->isEnabled() && widget->isVisible() && (widget->focusPolicy() & Qt::TabFocus)
           && !widget->focusProxy();
}

} // namespace

class tst_AccessibilityWalk : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void page_data();
    void page();

private:
    QStringList faultyNames() const;
    QStringList missedByTab() const;

    Gallery m_gallery{QStringLiteral(NVO_THEME_DIR)};
};

void tst_AccessibilityWalk::page_data()
{
    QTest::addColumn<QString>("theme");
    QTest::addColumn<QString>("page");
    for (const Theme &theme : themes()) {
        for (const QString &page : pageKeys())
            QTest::addRow("%s %s", qPrintable(theme.key), qPrintable(page)) << theme.key << page;
    }
}

void tst_AccessibilityWalk::page()
{
    QFETCH(QString, theme);
    QFETCH(QString, page);
    QVERIFY2(m_gallery.open(*themeByKey(theme), page), qPrintable(m_gallery.error()));
    m_gallery.window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_gallery.window()));

    const QStringList faults = faultyNames() + missedByTab();
    for (const QString &fault : faults)
        QTest::qWarn(qPrintable(fault)); // one by one: a long message would be cut
    QVERIFY(faults.isEmpty());
}

/** What can take the focus says what it is and what it is called. */
QStringList tst_AccessibilityWalk::faultyNames() const
{
    QVector<QAccessibleInterface *> open{QAccessible::queryAccessibleInterface(m_gallery.window())};
    QStringList faults;
    while (!open.isEmpty()) {
        QAccessibleInterface *interface = open.takeLast();
        for (int i = 0; i < interface->childCount(); ++i) {
            if (QAccessibleInterface *child = interface->child(i))
                open.append(child);
        }
        if (!takesFocus(interface))
            continue;
        const QString faulty = describe(interface->object());
        if (interface->text(QAccessible::Name).trimmed().isEmpty())
            faults.append(QStringLiteral("no name: ") + faulty);
        if (!roleFits(interface))
            faults.append(QStringLiteral("role %1: ").arg(interface->role()) + faulty);
    }
    return faults;
}

/** Tab meets every widget that takes it and is not trapped on the way. */
QStringList tst_AccessibilityWalk::missedByTab() const
{
    QSet<QWidget *> missing;
    for (QWidget *widget : m_gallery.window()->findChildren<QWidget *>()) {
        if (widget->window() == m_gallery.window() && takesTab(widget))
            missing.insert(widget);
    }
    const int enough = missing.size() + linksOfALabel;
    for (int fruitless = 0; !missing.isEmpty() && fruitless <= enough; ++fruitless) {
        QTest::keyClick(m_gallery.window()->windowHandle(), Qt::Key_Tab);
        if (missing.remove(QApplication::focusWidget()))
            fruitless = 0;
    }
    QStringList faults;
    for (const QWidget *widget : qAsConst(missing))
        faults.append(QStringLiteral("never met: ") + describe(widget));
    return faults;
}

int main(int argc, char **argv)
{
    GalleryApplication application(argc, argv);
    tst_AccessibilityWalk test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_accessibilitywalk.moc"
