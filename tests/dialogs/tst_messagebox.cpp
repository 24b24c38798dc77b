#include "Guards.h"
#include "TestCase.h"
#include "TestResources.h"

#include <nvo/CheckBox.h>
#include <nvo/HairLine.h>
#include <nvo/Label.h>
#include <nvo/MessageBox.h>
#include <nvo/Palette.h>
#include <nvo/SelectionMessageBoxBase.h>

#include <QtTest>
#include <QtWidgets>

using namespace NVO;

namespace {

class TestedSelection : public SelectionMessageBoxBase
{
public:
    using SelectionMessageBoxBase::buttonsContainer;
    using SelectionMessageBoxBase::SelectionMessageBoxBase;
};

/** The object names of the widgets in a column that are not hidden. */
QStringList visibleNames(const QWidget *column)
{
    QStringList names;
    for (int i = 0; i < column->layout()->count(); ++i) {
        const QWidget *widget = column->layout()->itemAt(i)->widget();
        if (widget && widget->isVisibleTo(column))
            names.append(widget->objectName());
    }
    return names;
}

} // namespace

class TestMessageBox : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void width_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("width");
        const QString word = "Buchung ";
        QTest::newRow("empty") << QString() << 520;
        QTest::newRow("short") << word << 520;
        QTest::newRow("lines of their own") << QString("Zeile<br>").repeated(12) << 520;
        QTest::newRow("wraps") << word.repeated(40) << 630;
        QTest::newRow("very long") << word.repeated(900) << 630;
    }
    void width()
    {
        QFETCH(QString, text);
        for (const bool effects : {true, false}) {
            const auto guard = withEffects(effects);
            for (const QMessageBox::Icon icon : {QMessageBox::NoIcon, QMessageBox::Warning}) {
                MessageBox box(icon, "Titel", text, DialogButton::Ok, DialogButton::Ok, nullptr);
                QTEST(box.sizeHint().width(), "width");
                QCOMPARE(box.sizeHint().height(), box.heightForWidth(box.sizeHint().width()));
                QCOMPARE(box.minimumSizeHint(), box.sizeHint());
                box.show();
                QCOMPARE(box.size(), box.sizeHint().boundedTo(box.screen()->availableSize()));
                const auto *message = box.findChild<Label *>("mmessage");
                QVERIFY(message->height() >= message->heightForWidth(message->width())
                        || box.height() == box.screen()->availableSize().height());
            }
        }
    }

    void growsWhileShown()
    {
        MessageBox box(QMessageBox::NoIcon, "Titel", QString("Zeile ").repeated(60), DialogButton::Ok,
                       DialogButton::Ok, nullptr);
        box.show();
        const auto fits = [&box] { return box.height() >= box.heightForWidth(box.width()); };
        box.setWindowTitle(QString("Langer Titel ").repeated(30));
        QTRY_VERIFY(fits());
        box.setCheckbox("Merken", Qt::Checked);
        QTRY_VERIFY(fits());
        box.hide();
        box.setCheckbox(QString(), Qt::Checked);
        box.setWindowTitle("Titel");
        box.show();
        QCOMPARE(box.size(), box.sizeHint()); // not what it was before
        box.resize(700, 500);
        box.hide();
        box.show();
        QCOMPARE(box.size(), QSize(700, 500));

        const auto wide = DialogButton::SetBookmark | DialogButton::DeleteBookmark | DialogButton::GoToMapping
                          | DialogButton::AbgabeComplete;
        MessageBox row(QMessageBox::NoIcon, "Titel", "Text", wide, DialogButton::NoButton, nullptr);
        row.show();
        for (const DialogButton *button : row.findChildren<DialogButton *>())
            QVERIFY(button->width() >= button->sizeHint().width());
        MessageBox narrow(QMessageBox::NoIcon, "Titel", "Text", DialogButton::Ok, DialogButton::Ok, nullptr);
        narrow.setFixedWidth(400);
        narrow.show();
        QCOMPARE(narrow.width(), 400);
    }

    void parts()
    {
        const QMap<QMessageBox::Icon, QString> pixmaps{
            {QMessageBox::NoIcon, ""},           {QMessageBox::Information, "information"},
            {QMessageBox::Warning, "warning"},   {QMessageBox::Critical, "critical"},
            {QMessageBox::Question, "question"}, {QMessageBox::Icon(7), "unknown"}};
        for (auto icon = pixmaps.begin(); icon != pixmaps.end(); ++icon) {
            MessageBox box(icon.key(), "Titel", "Löschen? <a href=\"mehr\">Mehr</a>",
                           DialogButton::Yes | DialogButton::No, DialogButton::No, nullptr);
            QCOMPARE(box.objectName(), QString("NvoMessageBox"));
            QCOMPARE(box.windowTitle(), QString("Titel"));
            const auto *label = box.findChild<QLabel *>("icon");
            QCOMPARE(label != nullptr, icon.key() != QMessageBox::NoIcon);
            if (label) {
                QCOMPARE(label->size(), QSize(40, 40));
                const QPixmap pixmap = label->pixmap(Qt::ReturnByValue);
                QCOMPARE(pixmap.isNull(), *icon == "unknown");
                if (!pixmap.isNull())
                    QCOMPARE(pixmap.width(), pixmaps.values().indexOf(*icon) + 1);
            }
            QString link;
            connect(&box, &MessageBox::linkActivated,
                    [&link](const QString &activated) { link = activated; });
            Q_EMIT box.findChild<Label *>("mmessage")->linkActivated("mehr");
            QCOMPARE(link, QString("mehr"));
            QCOMPARE(QAccessible::queryAccessibleInterface(&box)->text(QAccessible::Description),
                     QString("Löschen? Mehr"));
        }
    }

    void checkBox()
    {
        for (const int variant : {0, 1}) {
            const auto guard = withVariant(variant);
            MessageBox box(QMessageBox::Question, "Titel", "Text", DialogButton::Yes | DialogButton::No,
                           DialogButton::No, nullptr);
            const auto *bar = box.findChild<QFrame *>("frameCheckboxBar");
            const auto *frame = box.findChild<QFrame *>("frame");
            auto *checkBox = box.findChild<CheckBox *>();
            const int height = box.sizeHint().height();
            QVERIFY(!bar->isVisibleTo(frame));
            box.setCheckbox("Nicht mehr fragen", Qt::PartiallyChecked);
            QVERIFY(bar->isVisibleTo(frame) && box.sizeHint().height() > height);
            QCOMPARE(box.checkState(), Qt::PartiallyChecked);
            QCOMPARE(
                static_cast<HairLine *>(bar->findChild<QWidget *>("HairLine"))->color(),
                Palette::instance().namedColor(variant == 1 ? "BASECOLOR_SILVER" : "BASECOLOR_MERCURY_GRAY"));
            QTimer::singleShot(0, &box, [&] {
                box.setCheckState(Qt::Unchecked);
                checkBox->click();
                QTest::keyClick(&box, Qt::Key_Escape);
            });
            QCOMPARE(box.exec(), int(QDialog::Rejected));
            QCOMPARE(box.pressedButton(), DialogButton::No);
            QVERIFY(box.isChecked());
            box.setCheckbox(QString(), Qt::Unchecked);
            QVERIFY(!bar->isVisibleTo(frame) && !box.isChecked() && box.sizeHint().height() == height);
        }
    }

    void selection()
    {
        for (int bits = 0; bits < 16; ++bits) {
            const auto type = bits & 1 ? Dialog::ButtonType(int(DialogButton::Ok | DialogButton::Cancel))
                                       : DialogButton::NoButton;
            TestedSelection box(nullptr, "Titel", bits & 2 ? "Wie?" : "", bits & 4 ? "Wählen Sie" : "", type,
                                bits & 8 ? "hilfe" : "");
            QStringList names{"topSpacer", "", "bottomSpacer"};
            if (bits & 4)
                names.prepend("subHeader");
            if (bits & 2)
                names.prepend("caption");
            QCOMPARE(visibleNames(box.content()), names);
            box.setInfoBox(InfoBox::Error, "Achtung", QPixmap(), Qt::AlignTop);
            QCOMPARE(visibleNames(box.content()), names);
            box.setInfoBoxVisible(true);
            QCOMPARE(visibleNames(box.content()), QStringList("infoBox") + names);
            box.setInfoBoxVisible(false);
            box.show();
            QCOMPARE(visibleNames(box.content()), names);
            QCOMPARE(box.size(), box.sizeHint());

            const auto *bar = box.findChild<QFrame *>("frameCheckboxBar");
            const bool hasButtons = bits & (1 | 8);
            box.setCheckBoxText("Merken");
            box.setCheckBoxChecked(true);
            QVERIFY(!bar->isVisible() && box.checkBoxIsChecked());
            box.setCheckBoxVisible(true);
            QCOMPARE(visibleNames(bar).size(), hasButtons ? 3 : 1);
            QCOMPARE(visibleNames(bar).last(), QString("SelectionMessageBoxCheckBox"));
            QVERIFY(bar->isVisible());
            box.setCheckBoxVisible(false);
            QVERIFY(!bar->isVisible());
            QVERIFY(box.buttonsContainer()->layout()->contentsMargins().isNull());
        }
        TestedSelection box(nullptr, "", "<a href=\"x\">x</a>", "", DialogButton::Close, "");
        QSignalSpy links(&box, &SelectionMessageBoxBase::linkActivated);
        Q_EMIT box.findChild<Label *>("caption")->linkActivated("x");
        QCOMPARE(links.count(), 1);
    }

private:
    static QByteArray picture(int width) { return TestResources::png(width, 1, {0xff00ff00}); }

    const TestResources m_theme{QMap<QString, QByteArray>{
        {"Palette", "[Named]\nBASECOLOR_SILVER=#112233\nBASECOLOR_MERCURY_GRAY=#445566\n"},
        {"information", picture(2)},
        {"warning", picture(3)},
        {"critical", picture(4)},
        {"question", picture(5)}}};
};

QTEST_MAIN(TestMessageBox)
#include "tst_messagebox.moc"
