// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "dialogsupport.h"

#include <QAbstractItemView>
#include <QButtonGroup>
#include <QElapsedTimer>
#include <QFormLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QScopedValueRollback>
#include <QScreen>
#include <QStyleOptionComboBox>
#include <QTranslator>

#include <memory>

using Keys = QVector<Qt::Key>;

namespace {

bool hasScreen = true;

// As texts() gives them.
const char english[]
    = "Dialog|Accept|Cancel|Default|Open as the selected task type.|Cancel the opening operation.|"
      "Open as the default project mode.|You should confirm the task type:";
const char chinese[] = "对话框|确定|取消|默认|按所选任务类型打开。|取消打开操作。|"
                       "按默认项目模式打开。|请确认任务类型：";

QString texts(const UTaskSelectDialog &dialog)
{
    QStringList texts(dialog.windowTitle());
    for (const char *name : { "pushButton_accept", "pushButton_cancel", "pushButton_Default",
                              "label_2", "label_3", "label_4", "label" })
        texts.append(dialog.findChild<QWidget *>(name)->property("text").toString());
    return texts.join('|');
}

/// Appends a line for each member below @p layout.
void describe(QLayout *layout, QStringList *lines)
{
    for (int i = 0; i < layout->count(); ++i) {
        QLayoutItem *item = layout->itemAt(i);
        const QObject *member = item->widget();
        if (item->layout())
            member = item->layout();
        QString place = QString::number(i);
        if (const auto *form = qobject_cast<QFormLayout *>(layout)) {
            int row = -1;
            QFormLayout::ItemRole role = QFormLayout::SpanningRole;
            form->getItemPosition(i, &row, &role);
            place = QString("%1, %2").arg(row).arg(role == QFormLayout::LabelRole ? "label"
                                                                                  : "field");
        }
        lines->append(layout->objectName() + " " + place + ": " + member->metaObject()->className()
                      + " " + member->objectName());
        if (item->layout())
            describe(item->layout(), lines);
    }
}

/// The translation that the library brings along, installed for the life of this object.
class Chinese
{
public:
    Chinese()
    {
        const QLocale locale(QLocale::Chinese, QLocale::China);
        failUnless(m_translator.load(locale, "kelto", "_", ":/kelto/translations"),
                   "the translation is not there");
        QCoreApplication::installTranslator(&m_translator);
    }

private:
    QTranslator m_translator;
};

/// A language in which every text is long.
class Wordy : public QTranslator
{
public:
    QString translate(const char *, const char *text, const char *, int) const override
    {
        return QString("This is what an English program says: ") + text;
    }
    bool isEmpty() const override { return false; }
};

/// Two entries, the first of which takes @p width to show.
Pairs itemsOfWidth(const UTaskSelectDialog &dialog, int width)
{
    QString name;
    while (comboBox(dialog)->fontMetrics().horizontalAdvance(name) < width)
        name.append("求m");
    return { { "App:G:a", name }, { "App:G:b", "App:G:b" } };
}

bool showsAllOfTheName(const UTaskSelectDialog &dialog)
{
    QComboBox unbounded;
    unbounded.setFont(comboBox(dialog)->font());
    unbounded.addItems(shownTexts(dialog));
    return comboBox(dialog)->width() >= unbounded.sizeHint().width();
}

bool clipsText(const UTaskSelectDialog &dialog)
{
    const QRegularExpression ofOneLine("^(label|pushButton|comboBox)");
    const QList<QWidget *> widgets = dialog.findChildren<QWidget *>(ofOneLine);
    return std::any_of(widgets.begin(), widgets.end(), [](const QWidget *widget) {
        return widget->sizeHint().boundedTo(widget->size()) != widget->sizeHint();
    });
}

/// @p text as the field of @p box shows it.
QString elided(const QComboBox &box, const QString &text)
{
    QStyleOptionComboBox option;
    option.initFrom(&box);
    const QRect field = box.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                    QStyle::SC_ComboBoxEditField, &box);
    return box.fontMetrics().elidedText(text, Qt::ElideMiddle, field.width() - 2);
}

QString focusName(const UTaskSelectDialog &dialog)
{
    return dialog.focusWidget() ? dialog.focusWidget()->objectName() : QString();
}

} // namespace

// Replaces Qt's own for the library: no platform of Qt can be without a screen in a test.
QScreen *QWidget::screen() const
{
    return hasScreen ? QGuiApplication::primaryScreen() : nullptr;
}

class TestTaskSelectDialogForm : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override
    {
        DirectoryTest::init();
        m_registry = twoGroups();
        m_dialog = std::make_unique<UTaskSelectDialog>();
        m_dialog->set(&m_registry);
    }
    void cleanup() override
    {
        m_dialog.reset();
        DirectoryTest::cleanup();
    }

    void isAWindowOfItsOwn()
    {
        QCOMPARE(m_dialog->objectName(), QString("UTaskSelectDialog"));
        QCOMPARE(m_dialog->windowModality(), Qt::ApplicationModal);
        QCOMPARE(m_dialog->size(), QSize(400, 300));
        QCOMPARE(m_dialog->parent(), nullptr);
        QCOMPARE(m_dialog->windowFlags(), QDialog().windowFlags());
        QVERIFY(!m_dialog->isVisible());
    }

    void hasTheDescribedMembers()
    {
        QStringList lines(m_dialog->layout()->objectName());
        describe(m_dialog->layout(), &lines);
        lines.sort();
        QCOMPARE(lines,
                 QStringList({ "formLayout 0, field: QLabel label_2",
                               "formLayout 0, label: QPushButton pushButton_accept",
                               "formLayout 1, field: QLabel label_3",
                               "formLayout 1, label: QPushButton pushButton_cancel",
                               "formLayout 2, field: QLabel label_4",
                               "formLayout 2, label: QPushButton pushButton_Default",
                               "verticalLayout 0: QFormLayout formLayout",
                               "verticalLayout 1: QLabel label",
                               "verticalLayout 2: QComboBox comboBox",
                               "verticalLayout 3: QPlainTextEdit plainTextEdit", "verticalLayout_2",
                               "verticalLayout_2 0: QVBoxLayout verticalLayout" }));
        // Nothing but these nine widgets and the layout, which is a QVBoxLayout, too.
        QCOMPARE(m_dialog->children().size(), 10);
        QVERIFY(qobject_cast<QVBoxLayout *>(m_dialog->layout()));
        QCOMPARE(m_dialog->findChild<QLabel *>("label")->buddy(), comboBox(*m_dialog));
    }

    void groupsTheButtons()
    {
        const auto *accept = m_dialog->findChild<QPushButton *>("pushButton_accept");
        const QButtonGroup *group = accept->group();
        QCOMPARE(group->button(0), accept);
        QCOMPARE(group->button(1)->objectName(), QString("pushButton_cancel"));
        QCOMPARE(group->button(2)->objectName(), QString("pushButton_Default"));
        QCOMPARE(group->buttons().size(), 3);
        QCOMPARE(group->parent(), nullptr);
        QVERIFY(accept->isDefault());
    }

    void followsTheLanguage()
    {
        QCOMPARE(texts(*m_dialog), QString(english));
        comboBox(*m_dialog)->setCurrentIndex(2);
        m_dialog->setWindowTitle("Title of the host");
        m_dialog->setFont(QFont("Serif"));
        QCOMPARE(m_dialog->windowTitle(), QString("Title of the host"));
        {
            const Chinese translation;
            QCOMPARE(texts(UTaskSelectDialog()), QString(chinese));
            QCoreApplication::sendPostedEvents();
            QCOMPARE(texts(*m_dialog), QString(chinese));
        }
        QCoreApplication::sendPostedEvents();
        QCOMPARE(texts(*m_dialog), QString(english));
        QCOMPARE(m_dialog->currentItemIndex(), 2);
        QCOMPARE(shownTexts(*m_dialog), m_dialog->getSecondItems(allModes()));
    }

    void boxFollowsTheLanguage()
    {
        m_dialog->set(nullptr);
        QStringList boxTexts;
        showAndMeetBox(*m_dialog, [&](QMessageBox *box) {
            {
                const Chinese translation;
                QCoreApplication::sendPostedEvents();
                boxTexts << box->windowTitle() << box->text();
            }
            QCoreApplication::sendPostedEvents();
            boxTexts << box->windowTitle() << box->text();
            m_dialog->close();
        });
        QCOMPARE(boxTexts,
                 QStringList({ "设置错误", "请先连接 Kelto。", "Wrong Sets",
                               "Please connect Kelto first." }));
    }

    void clipsNoText()
    {
        bool clips = true;
        bool clipsChinese = true;
        bool clipsLongTexts = true;
        QSize size;
        showAnd(*m_dialog, [&] {
            clips = clipsText(*m_dialog);
            const Chinese translation;
            clipsChinese = !QTest::qWaitFor([&] { return texts(*m_dialog) == chinese; })
                || clipsText(*m_dialog);
            size = m_dialog->size();
            Wordy wordy;
            QCoreApplication::installTranslator(&wordy);
            clipsLongTexts = !QTest::qWaitFor(
                [&] { return m_dialog->width() > 400 && !clipsText(*m_dialog); });
            m_dialog->close();
        });
        QVERIFY(!clips);
        QVERIFY(!clipsChinese);
        QCOMPARE(size, QSize(400, 300));
        QVERIFY(!clipsLongTexts);
    }

    void makesRoomForNames_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<bool>("showsAll");

        QTest::newRow("short name") << 50 << true;
        QTest::newRow("name wider than the window at first") << 500 << true;
        QTest::newRow("name wider than the screen") << 5000 << false;
    }
    void makesRoomForNames()
    {
        QFETCH(int, width);
        m_dialog->setItems(itemsOfWidth(*m_dialog, width));
        bool showsAll = false;
        QRect place;
        QPoint offset;
        const QRect screen = m_dialog->screen()->availableGeometry();
        showAnd(*m_dialog, [&] {
            showsAll = showsAllOfTheName(*m_dialog);
            place = m_dialog->frameGeometry();
            offset = m_dialog->geometry().center() - screen.center();
            m_dialog->close();
        });
        QTEST(showsAll, "showsAll");
        QVERIFY(screen.contains(place));
        // In the middle. Qt leaves room for a frame of which it knows nothing yet.
        QVERIFY2(qAbs(offset.x()) <= 20 && qAbs(offset.y()) <= 50,
                 qPrintable(QString("%1, %2").arg(offset.x()).arg(offset.y())));
    }

    void elidesWhatDoesNotFit_data()
    {
        QTest::addColumn<QString>("name");

        const QString rest(10000000, 'm');
        QTest::newRow("name wider than the screen") << "App:G:" + rest.left(900) + "end";
        QTest::newRow("name of ten million characters") << "App:G:" + rest + "end";
    }
    void elidesWhatDoesNotFit()
    {
        QFETCH(QString, name);
        QElapsedTimer time;
        time.start();
        QComboBox *box = comboBox(*m_dialog);
        m_dialog->setItems({ { name, name }, { "App:G:b", "b" } });
        QImage shown;
        QImage expected;
        int listHeight = 0;
        showAnd(*m_dialog, [&] {
            box->showPopup();
            listHeight = box->view()->sizeHintForRow(0);
            box->hidePopup();
            box->setCurrentIndex(0);
            shown = box->grab().toImage();
            QComboBox plain(m_dialog.get());
            plain.addItem(elided(*box, name.left(1000) + name.right(1000)));
            plain.setGeometry(box->geometry());
            plain.setFocus();
            expected = plain.grab().toImage();
            click(*m_dialog, "pushButton_accept");
        });
        QCOMPARE(shown, expected);
        QVERIFY(listHeight > 0);
        QCOMPARE(shownTexts(*m_dialog), QStringList({ name, "b" }));
        QCOMPARE(m_dialog->currentItem(), Pair(name, name));
        QCOMPARE(m_registry.current_mode, name.mid(6));
        // All of it measured would take longer by far.
        QVERIFY2(time.elapsed() < 3000, qPrintable(QString::number(time.elapsed())));
    }

    void makesRoomForAnotherFontAndLaterNames()
    {
        m_dialog->setItems(itemsOfWidth(*m_dialog, 350));
        showAnd(*m_dialog, [&] { m_dialog->close(); });
        QFont font = m_dialog->font();
        font.setPointSizeF(font.pointSizeF() * 1.4);
        m_dialog->setFont(font);
        bool inAnotherFont = false;
        bool whileShown = false;
        showAnd(*m_dialog, [&] {
            inAnotherFont = showsAllOfTheName(*m_dialog);
            m_dialog->setItems(itemsOfWidth(*m_dialog, 520));
            whileShown = QTest::qWaitFor([&] { return showsAllOfTheName(*m_dialog); });
            m_dialog->close();
        });
        QVERIFY(inAnotherFont);
        QVERIFY(whileShown);
    }

    void survivesWithoutAScreen()
    {
        const QScopedValueRollback<bool> noScreen(hasScreen, false);
        m_dialog->setItems(itemsOfWidth(*m_dialog, 500));
        QCOMPARE(showAnd(*m_dialog, [&] { click(*m_dialog, "pushButton_Default"); }), 0);
        QCOMPARE(m_registry.current_mode, QString("a"));
    }

    void movesTheFocus_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<QStringList>("way");

        const QStringList way { "comboBox",           "pushButton_accept", "pushButton_cancel",
                                "pushButton_Default", "plainTextEdit",     "comboBox" };
        QTest::newRow("forwards") << Qt::Key_Tab << way;
        QTest::newRow("backwards") << Qt::Key_Backtab << QStringList(way.rbegin(), way.rend());
    }
    /// Each showing starts at the combo box, wherever the focus was when the last one ended.
    void movesTheFocus()
    {
        QFETCH(Qt::Key, key);
        QFETCH(QStringList, way);
        for (int steps = 1; steps <= way.size(); ++steps) {
            QStringList walked;
            showAnd(*m_dialog, [&] {
                walked.append(focusName(*m_dialog));
                while (walked.size() < steps) {
                    press(*m_dialog, key);
                    walked.append(focusName(*m_dialog));
                }
                m_dialog->close();
            });
            QCOMPARE(walked, way.mid(0, steps));
        }
    }

    void closesByKeys_data()
    {
        QTest::addColumn<Keys>("keys");
        QTest::addColumn<int>("operateIndex");
        QTest::addColumn<QString>("acceptedMode");

        const auto row = [](const char *name, int tabs, const Keys &keys, int operateIndex,
                            const char *mode) {
            QTest::newRow(name) << Keys(tabs, Qt::Key_Tab) + keys << operateIndex << QString(mode);
        };
        row("Return on the combo box accepts", 0, { Qt::Key_Return }, 0, "b");
        row("Enter of the keypad on the combo box accepts", 0, { Qt::Key_Enter }, 0, "b");
        row("another entry", 0, { Qt::Key_Down, Qt::Key_Return }, 0, "c");
        row("Return on Accept", 1, { Qt::Key_Return }, 0, "b");
        row("Space on Accept", 1, { Qt::Key_Space }, 0, "b");
        row("Return on Cancel", 2, { Qt::Key_Return }, 1, "");
        row("Space on Cancel", 2, { Qt::Key_Space }, 1, "");
        row("Return on Default", 3, { Qt::Key_Return }, 0, "a");
        row("Space on Default", 3, { Qt::Key_Space }, 0, "a");
        row("Escape on the combo box", 0, { Qt::Key_Escape }, -1, "");
        row("Escape on a button", 3, { Qt::Key_Escape }, -1, "");
        row("Escape in the text field", 4, { Qt::Key_Escape }, -1, "");
    }
    void closesByKeys()
    {
        QFETCH(Keys, keys);
        showAnd(*m_dialog, [&] {
            comboBox(*m_dialog)->setCurrentIndex(1);
            for (const Qt::Key key : keys)
                press(*m_dialog, key);
        });
        QTEST(m_dialog->operateIndex, "operateIndex");
        QTEST(m_registry.current_mode, "acceptedMode");
    }

    void textFieldBelongsToTheUser()
    {
        const auto *field = m_dialog->findChild<QPlainTextEdit *>("plainTextEdit");
        bool staysOpen = false;
        showAnd(*m_dialog, [&] {
            failUnless(field->toPlainText().isEmpty(), "the text field is not empty");
            const Keys keys = Keys(4, Qt::Key_Tab) + Keys { Qt::Key_A, Qt::Key_Return };
            for (const Qt::Key key : keys)
                press(*m_dialog, key);
            staysOpen = m_dialog->isVisible();
            click(*m_dialog, "pushButton_Default");
        });
        QVERIFY(staysOpen);
        QCOMPARE(field->toPlainText(), QString("a\n"));
    }

private:
    AUTH_SET m_registry;
    std::unique_ptr<UTaskSelectDialog> m_dialog;
};

QTEST_MAIN(TestTaskSelectDialogForm)
#include "tst_utaskselectdialog_form.moc"
