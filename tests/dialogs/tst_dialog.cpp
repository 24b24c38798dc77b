#include "Guards.h"
#include "SignalRecorder.h"
#include "TestCase.h"
#include "TestResources.h"

#include <nvo/Button.h>
#include <nvo/Dialog.h>
#include <nvo/HairLine.h>
#include <nvo/IconButton.h>
#include <nvo/Palette.h>

#include <QRandomGenerator>
#include <QtTest>
#include <QtWidgets>

#include <functional>

using namespace NVO;

namespace {

using Type = DialogButton::ButtonType;
using Types = QFlags<Type>;

class TestedDialog : public Dialog
{
public:
    using Dialog::Dialog;
    explicit TestedDialog(Types buttons, Type defaultButton = DialogButton::NoButton,
                          QWidget *parent = nullptr)
        : Dialog(parent, ElementDialog, buttons, defaultButton, NoFlag)
    {}
    using Dialog::isActionBarVisible;
    using Dialog::setButtons;
    using Dialog::setExtraFooterWidget;
    using Dialog::setHairLineVisible;
    using Dialog::updateFooterVisible;

    DialogButton *button(Type type) const
    {
        for (DialogButton *button : findChildren<DialogButton *>()) {
            if (button->buttonType() == type)
                return button;
        }
        return nullptr;
    }
    QFrame *frame(const QString &name) const { return findChild<QFrame *>(name); }
    IconButton *help() const { return findChild<IconButton *>(); }
    HairLine *line() const { return static_cast<HairLine *>(findChild<QWidget *>("HairLine")); }

    bool checkAccept() override
    {
        ++asked;
        return onAccept ? onAccept() : true;
    }

    int asked = 0;
    std::function<bool()> onAccept;
};

/** Every button type, with whether a click on it accepts. */
QMap<Type, bool> allTypes()
{
    QMap<Type, bool> result;
    const auto types = QMetaEnum::fromType<Type>();
    for (int i = 0; i < types.keyCount(); ++i)
        result[Type(types.value(i))] = true;
    for (const Type type : {DialogButton::Cancel, DialogButton::No, DialogButton::Close, DialogButton::NoSave,
                            DialogButton::DeleteBookmark, DialogButton::SurveyLater, DialogButton::SurveyNo,
                            DialogButton::SurveyNotReally})
        result[type] = false;
    result.remove(DialogButton::NoButton);
    return result;
}

/** Shows a dialog and waits until it has the focus. */
bool showActive(QWidget &dialog)
{
    dialog.show();
    return QTest::qWaitForWindowActive(&dialog);
}

} // namespace

class TestDialog : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void windowFlags()
    {
        const Qt::WindowFlags frameless = Qt::FramelessWindowHint | Qt::CustomizeWindowHint;
        const QMap<int, Qt::WindowFlags> expected{
            {0, Qt::Dialog | frameless}, {2, Qt::Tool | frameless}, {4, Qt::Dialog | frameless}};
        for (int flags = 0; flags < 8; ++flags) {
            TestedDialog dialog(nullptr, ElementDialog, QFlags<Dialog::DialogFlag>(flags));
            const Qt::WindowFlags on =
                flags & 1 ? Qt::Dialog | frameless | Qt::WindowStaysOnTopHint : expected[flags & 2];
            QCOMPARE(dialog.windowFlags(), on);
            QVERIFY(dialog.testAttribute(Qt::WA_TransparentForMouseEvents) && dialog.hasMouseTracking());
            QCOMPARE(dialog.frame("frameActionBar")->property("darkBackground").toBool(), flags >= 4);
            // The window takes the mouse, also after somebody has given it other flags.
            dialog.setWindowFlag(Qt::WindowCloseButtonHint);
            dialog.show();
            QVERIFY(!dialog.windowHandle()->flags().testFlag(Qt::WindowTransparentForInput));
        }
    }

    void parts()
    {
        for (const int variant : {0, 1}) {
            const auto guard = withVariant(variant);
            TestedDialog dialog;
            auto *content = new QLabel("Inhalt");
            dialog.setContent(content, Qt::AlignTop);
            const QLayout *rows = dialog.frame("frame")->layout();
            const QList<QWidget *> order{dialog.frame("frameTitleBar"), content, dialog.line(),
                                         dialog.frame("frameActionBar")};
            for (int row = 0; row < order.size(); ++row)
                QCOMPARE(rows->itemAt(row)->widget(), order[row]);
            auto *close = dialog.findChild<Button *>();
            QVERIFY(close->isHidden() && close->focusPolicy() == Qt::NoFocus);
            QCOMPARE(close->buttonStyle(), variant == 0 ? Button::Close : Button::CloseDark);
            QCOMPARE(dialog.line()->color(), Palette::instance().namedColor(
                                                 variant == 1 ? "BASECOLOR_SILVER" : "BASECOLOR_LIGHT_GRAY"));
            dialog.enableCloseButton(true);
            dialog.show();
            QCOMPARE(dialog.titleBarHeight(), dialog.frame("frameTitleBar")->height());
            close->click();
            QVERIFY(!dialog.isVisible());
            dialog.setTitleBarVisible(false);
            QVERIFY(dialog.frame("frameTitleBar")->isHidden());
        }
    }

    void roleDecides()
    {
        const QMap<Type, bool> types = allTypes();
        for (auto type = types.begin(); type != types.end(); ++type) {
            for (const bool agree : {true, false}) {
                TestedDialog dialog(type.key());
                SignalRecorder recorder;
                recorder.record(&dialog, &QDialog::accepted, "accepted");
                recorder.record(&dialog, &QDialog::rejected, "rejected");
                recorder.record(&dialog, &Dialog::printClicked, "print");
                dialog.onAccept = [agree] { return agree; };
                dialog.show();
                dialog.button(type.key())->click();
                const bool print = type.key() == DialogButton::Print;
                const bool asked = *type && !print;
                const QStringList expected = print    ? QStringList("print")
                                             : !*type ? QStringList("rejected")
                                             : agree  ? QStringList("accepted")
                                                      : QStringList();
                QCOMPARE(recorder.take(), expected);
                QCOMPARE(dialog.asked, int(asked));
                QCOMPARE(dialog.isVisible(), print || (asked && !agree));
                QCOMPARE(dialog.pressedButton(), type.key());
            }
        }
        TestedDialog dialog;
        dialog.addButton("Eigener", QDialogButtonBox::RejectRole);
        dialog.show();
        dialog.button(DialogButton::UserDefined)->click();
        QCOMPARE(dialog.result(), int(QDialog::Accepted)); // the type decides, not the role given
    }

    void escape()
    {
        const QList<Type> order{DialogButton::Close,   DialogButton::Cancel, DialogButton::No,
                                DialogButton::NoSave,  DialogButton::Ignore, DialogButton::SurveyLater,
                                DialogButton::SurveyNo};
        QRandomGenerator random(7);
        for (int round = 0; round < 200; ++round) {
            Types types(int(random.generate() & 0x41ffff7f));
            for (const Type type : order)
                types.setFlag(type, random.bounded(4) == 0);
            TestedDialog dialog(types);
            dialog.addButton("Abbrechen", QDialogButtonBox::RejectRole); // takes no part
            dialog.show();
            QTest::keyClick(&dialog, Qt::Key_Escape);
            const auto first =
                std::find_if(order.begin(), order.end(), [types](Type type) { return types.testFlag(type); });
            QCOMPARE(dialog.pressedButton(), first == order.end() ? DialogButton::NoButton : *first);
            QVERIFY(!dialog.isVisible() && dialog.result() == QDialog::Rejected && dialog.asked == 0);
        }
    }

    void visibleRows()
    {
        for (int bits = 0; bits < 64; ++bits) {
            const auto guard = withVariant(bits & 1);
            const bool buttons = bits & 2;
            const bool help = bits & 4;
            const bool extra = bits & 8;
            const bool hidden = bits & 16; // extra widget and footer
            const bool shown = bits & 32;  // the dialog, before it is filled
            TestedDialog dialog;
            if (shown)
                dialog.show();
            QVERIFY(!dialog.isActionBarVisible() && !dialog.line()->isVisibleTo(&dialog));
            auto *widget = new QLabel("Zusatz");
            auto *footer = new QLabel("Fuß");
            widget->setVisible(!hidden);
            footer->setVisible(!hidden);
            if (extra)
                dialog.setExtraActionBarWidget(widget);
            else
                delete widget;
            dialog.setExtraFooterWidget(footer);
            dialog.setHelpFilePath(help ? "hilfe.html" : "");
            dialog.setButtons(buttons ? Types(DialogButton::Ok) : Types(), DialogButton::Ok, Dialog::NoFlag);
            const bool bar = buttons || help || (extra && !hidden);
            QCOMPARE(dialog.isActionBarVisible(), bar);
            QCOMPARE(dialog.help()->isVisibleTo(dialog.frame("frameActionBar")), help);
            QCOMPARE(dialog.line()->isVisibleTo(&dialog), bar && !(bits & 1));
            dialog.setHairLineVisible(true);
            QCOMPARE(dialog.line()->isVisibleTo(&dialog), bar);
            QCOMPARE(footer->isVisibleTo(&dialog), !hidden);
            footer->setVisible(hidden);
            dialog.updateFooterVisible();
            QCOMPARE(footer->isVisibleTo(&dialog), hidden);
        }
    }

    void defaultButton()
    {
        TestedDialog dialog(DialogButton::Yes | DialogButton::No | DialogButton::Cancel, DialogButton::No);
        dialog.setContent(new QLineEdit);
        QVERIFY(showActive(dialog));
        for (const Type type : {DialogButton::No, DialogButton::Yes, DialogButton::Ok, DialogButton::Cancel,
                                DialogButton::Yes}) {
            if (type != DialogButton::No)
                dialog.setDefaultButton(type);
            for (DialogButton *button : dialog.findChildren<DialogButton *>()) {
                const bool chosen = button->buttonType() == type;
                QCOMPARE(button->property("buttonPrimary"), QVariant(chosen));
                QCOMPARE(button->property("buttonSecondary"), QVariant(!chosen));
                if (dialog.button(type))
                    QCOMPARE(button->isDefault(), chosen);
                QVERIFY(button->autoDefault());
            }
            QVERIFY(!dialog.button(type) || dialog.button(type)->hasFocus());
        }
        dialog.content()->setFocus();
        QTest::keyClick(dialog.content(), Qt::Key_Return);
        QCOMPARE(dialog.pressedButton(), DialogButton::Yes);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
    }

    void shortcuts()
    {
        TestedDialog dialog(DialogButton::Ok | DialogButton::Cancel);
        auto *edit = new QLineEdit;
        dialog.setContent(edit);
        dialog.onAccept = [] { return false; };
        QVERIFY(showActive(dialog));
        const auto askedAfter = [&dialog](QWidget *focused, Qt::Key key) {
            focused->setFocus();
            QTest::keyClick(QApplication::focusWidget(), key);
            return dialog.asked;
        };
        QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(dialog.button(DialogButton::Ok));
        QCOMPARE(seen->text(QAccessible::Accelerator), QString("O"));
        QCOMPARE(askedAfter(edit, Qt::Key_O), 0);
        QCOMPARE(edit->text(), QString("o"));
        QCOMPARE(askedAfter(dialog.button(DialogButton::Cancel), Qt::Key_O), 1);
        dialog.button(DialogButton::Ok)->setEnabled(false);
        QCOMPARE(askedAfter(dialog.button(DialogButton::Cancel), Qt::Key_O), 1);
        for (int i = 0; i < 3; ++i) // an ambiguous shortcut would trigger nothing
            dialog.setButtons(DialogButton::Ok | DialogButton::Apply, DialogButton::Apply, Dialog::NoFlag);
        QCOMPARE(askedAfter(dialog.button(DialogButton::Apply), Qt::Key_O), 2);
        QCOMPARE(askedAfter(dialog.button(DialogButton::Apply), Qt::Key_A), 2); // its button has gone
        QVERIFY(dialog.isVisible());
    }

    void helpAndTexts()
    {
        TestedDialog dialog(DialogButton::Ok | DialogButton::Close, DialogButton::Ok);
        QString path;
        connect(&dialog, &Dialog::helpClicked, [&path](const QString &asked) { path = asked; });
        dialog.setWindowFilePath("hilfe.html#2");
        dialog.help()->click();
        QCOMPARE(path, QString("hilfe.html#2"));
        QCOMPARE(dialog.help()->text(), QString("Hilfe"));
        dialog.setHelpButtonText("Mehr");
        dialog.setButtonText(DialogButton::Close, "Zu");
        QCOMPARE(dialog.help()->text() + dialog.button(DialogButton::Close)->text(), QString("MehrZu"));
        for (const bool dark : {true, false}) {
            dialog.setActionBarDarkBackground(dark);
            dialog.addButton("Neu", QDialogButtonBox::ActionRole);
            QCOMPARE(dialog.help()->iconButtonStyle(), dark ? IconButtonStyle::Light : IconButtonStyle::Dark);
            for (const DialogButton *button : dialog.findChildren<DialogButton *>())
                QCOMPARE(button->property("DarkBackground"), QVariant(dark));
        }
        QVERIFY(!dialog.button(DialogButton::UserDefined)->property("buttonSecondary").isValid());
    }

    void helpIsNeverTheDefaultButton()
    {
        TestedDialog dialog(DialogButton::Cancel);
        dialog.setContent(new QLineEdit);
        dialog.setHelpFilePath("hilfe");
        const QSignalSpy helps(&dialog, &Dialog::helpClicked);
        QVERIFY(showActive(dialog));
        for (QWidget *focused : {static_cast<QWidget *>(dialog.help()), dialog.content()}) {
            focused->setFocus();
            QTest::keyClick(focused, Qt::Key_Return); // which help takes while it has the focus
            QCOMPARE(helps.count(), 1);
        }
        QCOMPARE(dialog.pressedButton(), DialogButton::Cancel);
    }

    void tabOrder()
    {
        TestedDialog dialog(DialogButton::Ok | DialogButton::Cancel, DialogButton::Ok);
        QList<QWidget *> order{dialog.help(), new QCheckBox("Zusatz"), new QCheckBox("Zusatz")};
        dialog.setContent(new QLineEdit);
        auto *extra = new QWidget;
        auto *row = new QHBoxLayout(extra);
        row->addWidget(order[1]);
        row->addWidget(order[2]);
        dialog.setHelpFilePath("hilfe");
        dialog.setExtraActionBarWidget(extra);
        dialog.setButtons(DialogButton::Ok | DialogButton::Cancel | DialogButton::Retry, DialogButton::Ok,
                          Dialog::NoFlag);
        QVERIFY(showActive(dialog));
        for (DialogButton *button : dialog.findChildren<DialogButton *>())
            order.append(button);
        std::sort(order.begin() + 3, order.end(),
                  [](const QWidget *a, const QWidget *b) { return a->x() < b->x(); });
        order.append(dialog.content());
        dialog.help()->setFocus();
        for (int i = 0; i <= order.size(); ++i) {
            QCOMPARE(QApplication::focusWidget(), order[i % order.size()]);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
    }

    void shadow()
    {
        for (const bool effects : {true, false}) {
            const auto guard = withEffects(effects);
            TestedDialog dialog;
            const QFrame *frame = dialog.frame("frame");
            for (const bool shows : {effects, false, effects}) { // a second call switches it off
                dialog.setShadowEnabled(true);
                QCOMPARE(frame->graphicsEffect() != nullptr, shows);
                QCOMPARE(dialog.layout()->contentsMargins(), shows ? QMargins(10, 0, 10, 10) : QMargins());
                QCOMPARE(dialog.testAttribute(Qt::WA_TranslucentBackground), shows);
                QCOMPARE(dialog.testAttribute(Qt::WA_NoSystemBackground), shows);
            }
            dialog.setShadowEnabled(false);
            QVERIFY(!frame->graphicsEffect());
        }
    }

    void slotsOwnTheirWidgets()
    {
        TestedDialog dialog;
        using Setter = std::function<void(QWidget *)>;
        for (const Setter &set : {Setter([&](QWidget *w) { dialog.setContent(w); }),
                                  Setter([&](QWidget *w) { dialog.setExtraActionBarWidget(w); }),
                                  Setter([&](QWidget *w) { dialog.setExtraFooterWidget(w); })}) {
            QPointer<QWidget> before;
            for (int i = 0; i < 3; ++i) {
                const QPointer<QWidget> next = i < 2 ? new QLabel("x") : nullptr;
                set(next);
                set(next); // is there already
                QVERIFY(!before && (i == 2 || dialog.isAncestorOf(next)));
                before = next;
            }
            auto *mortal = new QLabel("x");
            set(mortal);
            delete mortal; // by its owner
            dialog.updateFooterVisible();
            set(nullptr);
        }
        QVERIFY(!dialog.content() && !dialog.isActionBarVisible());
    }

    void deletedBySlots()
    {
        QPointer<TestedDialog> dialog;
        const auto remove = [&dialog] { delete dialog; };
        const auto removeAndAgree = [&dialog] {
            delete dialog;
            return true;
        };
        for (const int way : {0, 1, 2, 3}) {
            dialog = new TestedDialog(DialogButton::Ok, DialogButton::Ok);
            dialog->setHelpFilePath("hilfe");
            if (way == 0)
                connect(dialog->button(DialogButton::Ok), &QAbstractButton::clicked, dialog, remove);
            else if (way == 1)
                connect(dialog, &QDialog::finished, dialog, remove);
            else if (way == 2)
                dialog->onAccept = removeAndAgree;
            else
                connect(dialog, &Dialog::helpClicked, remove);
            dialog->show();
            QWidget *clicked = dialog->help();
            QTest::mouseClick(way == 3 ? clicked : dialog->button(DialogButton::Ok), Qt::LeftButton);
            QVERIFY(!dialog);
        }

        TestedDialog other(DialogButton::Retry, DialogButton::Retry);
        other.onAccept = [&other] {
            other.setButtons(DialogButton::Retry | DialogButton::Close, DialogButton::Close, Dialog::NoFlag);
            return false;
        };
        other.show();
        QTest::mouseClick(other.button(DialogButton::Retry), Qt::LeftButton);
        QVERIFY(other.asked == 1 && other.button(DialogButton::Close));
    }

    void nestedExec()
    {
        QStringList log;
        std::function<void(QWidget *, int)> run = [&](QWidget *parent, int depth) {
            TestedDialog dialog(DialogButton::Ok | DialogButton::Cancel, DialogButton::Ok, parent);
            QTimer::singleShot(0, &dialog, [&, depth] {
                if (depth > 1)
                    run(&dialog, depth - 1);
                dialog.button(depth % 2 ? DialogButton::Ok : DialogButton::Cancel)->click();
            });
            log.append(QString("%1:%2").arg(depth).arg(dialog.exec()));
        };
        run(nullptr, 3);
        QCOMPARE(log, QStringList({"1:1", "2:0", "3:1"}));

        auto *parent = new QWidget;
        const QPointer<TestedDialog> orphan = new TestedDialog(parent);
        QTimer::singleShot(0, parent, [parent] { delete parent; });
        QCOMPARE(orphan->exec(), int(QDialog::Rejected));
        QVERIFY(!orphan);
    }

private:
    const TestResources m_theme{QMap<QString, QByteArray>{
        {"Palette", "[Named]\nBASECOLOR_SILVER=#112233\nBASECOLOR_LIGHT_GRAY=#445566\n"},
        {"DialogButton", "[buttonPrimary=\"true\"] { color: rgb(1, 2, 3); }"}}};
};

QTEST_MAIN(TestDialog)
#include "tst_dialog.moc"
