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
    void width()
    {
        const QString word = "Buchung ";
        const QVector<QPair<QString, int>> textsAndWidths{{"", 520},
                                                          {word, 520},
                                                          {QString("Zeile<br>").repeated(12), 520},
                                                          {word.repeated(40), 630},
                                                          {word.repeated(900), 630}};
        for (int i = 0; i < 4 * textsAndWidths.size(); ++i) {
            const auto guard = withEffects(i % 2);
            const auto &row = textsAndWidths[i / 4];
            MessageBox box(i & 2 ? QMessageBox::Warning : QMessageBox::NoIcon, "Titel", row.first,
                           DialogButton::Ok, DialogButton::Ok, nullptr);
            QCOMPARE(box.sizeHint(), QSize(row.second, box.heightForWidth(row.second)));
            QCOMPARE(box.minimumSizeHint(), box.sizeHint());
            box.show();
            QCOMPARE(box.size(), box.sizeHint().boundedTo(box.screen()->availableSize()));
            const auto *message = box.findChild<Label *>("mmessage");
            QVERIFY(message->height() >= message->heightForWidth(message->width())
                    || box.height() == box.screen()->availableSize().height());
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
        box.setFixedWidth(400);
        box.hide();
        box.show();
        QCOMPARE(box.width(), 400);
    }

    void parts()
    {
        const QVector<QMessageBox::Icon> icons{QMessageBox::NoIcon,   QMessageBox::Icon(7),
                                               QMessageBox::Critical, QMessageBox::Information,
                                               QMessageBox::Question, QMessageBox::Warning};
        for (int i = 0; i < icons.size(); ++i) {
            MessageBox box(icons[i], "Titel", "Löschen? <a href=\"mehr\">Mehr</a>",
                           DialogButton::Yes | DialogButton::No, DialogButton::No, nullptr);
            const auto *label = box.findChild<QLabel *>("icon");
            QCOMPARE(label != nullptr, i > 0);
            if (label) {
                QCOMPARE(label->size(), QSize(40, 40));
                const QPixmap pixmap = label->pixmap(Qt::ReturnByValue);
                QCOMPARE(pixmap.width(), i > 1 ? i : 0);
            }
            const QSignalSpy links(&box, &MessageBox::linkActivated);
            Q_EMIT box.findChild<Label *>("mmessage")->linkActivated("mehr");
            QCOMPARE(links, QList<QVariantList>{{"mehr"}});
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
            box.setInfoBox(InfoBox::Error, "Achtung", QPixmap(), Qt::AlignTop);
            for (const bool visible : {false, true, false}) {
                if (visible || box.isVisible())
                    box.setInfoBoxVisible(visible);
                QCOMPARE(visibleNames(box.content()),
                         (visible ? QStringList("infoBox") : QStringList()) + names);
                box.show();
            }
            box.hide();
            box.show();
            QCOMPARE(box.size(), box.sizeHint());

            const auto *bar = box.findChild<QFrame *>("frameCheckboxBar");
            box.setCheckBoxText("Merken");
            box.setCheckBoxChecked(true);
            QVERIFY(!bar->isVisible() && box.checkBoxIsChecked());
            box.setCheckBoxVisible(true);
            QCOMPARE(visibleNames(bar).size(), bits & (1 | 8) ? 3 : 1);
            QCOMPARE(visibleNames(bar).last(), QString("SelectionMessageBoxCheckBox"));
            QVERIFY(bar->isVisible());
            box.setCheckBoxVisible(false);
            QVERIFY(!bar->isVisible());
        }
        TestedSelection box(nullptr, "", "<a href=\"x\">x</a>", "", DialogButton::Close, "");
        const QSignalSpy links(&box, &SelectionMessageBoxBase::linkActivated);
        Q_EMIT box.findChild<Label *>("caption")->linkActivated("x");
        QCOMPARE(links.count(), 1);
    }

private:
    static QByteArray picture(int width) { return TestResources::png(width, 1, {0xff00ff00}); }

    const TestResources m_theme{QMap<QString, QByteArray>{
        {"Palette", "[Named]\nBASECOLOR_SILVER=#112233\nBASECOLOR_MERCURY_GRAY=#445566\n"},
        {"critical", picture(2)},
        {"information", picture(3)},
        {"question", picture(4)},
        {"warning", picture(5)}}};
};

QTEST_MAIN(TestMessageBox)
#include "tst_messagebox.moc"
