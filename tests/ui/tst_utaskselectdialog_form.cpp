// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "dialogsupport.h"

#include "support/directorytest.h"

#include <QButtonGroup>
#include <QFormLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QScreen>
#include <QTranslator>

#include <memory>

namespace {

QString text(const QObject *object)
{
    for (const char *property : { "text", "windowTitle" }) {
        if (object->property(property).isValid())
            return object->property(property).toString();
    }
    return QString();
}

QObject *named(UTaskSelectDialog &dialog, const QString &name)
{
    return name == dialog.objectName() ? &dialog : dialog.findChild<QObject *>(name);
}

QLocale simplifiedChinese()
{
    return QLocale(QLocale::Chinese, QLocale::China);
}

/// The translation that the library brings along, installed for the life of this object.
class Chinese
{
public:
    Chinese()
        : m_loaded(m_translator.load(simplifiedChinese(), "kelto", "_", ":/kelto/translations"))
    {
        QCoreApplication::installTranslator(&m_translator);
    }
    bool isLoaded() const { return m_loaded; }

private:
    QTranslator m_translator;
    bool m_loaded;
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

} // namespace

class TestTaskSelectDialogForm : public DirectoryTest
{
    Q_OBJECT

private Q_SLOTS:
    void dialogItself();
    void members_data();
    void members();
    void hasNothingElse();
    void formPlaces_data();
    void formPlaces();
    void order();
    void buttons_data();
    void buttons();
    void buttonGroup();
    void textFieldStaysEmpty();
    void labelNamesTheComboBox();
    void chinese_data();
    void chinese();
    void chineseBox();
    void clipsNoText_data();
    void clipsNoText();
    void makesRoomForNames_data();
    void makesRoomForNames();
    void makesRoomForLaterNames();
    void makesRoomInAnotherFont();
    void opensInTheMiddle_data();
    void opensInTheMiddle();
};

void TestTaskSelectDialogForm::dialogItself()
{
    const UTaskSelectDialog dialog;
    QCOMPARE(dialog.objectName(), QString("UTaskSelectDialog"));
    QCOMPARE(dialog.windowTitle(), QString("Dialog"));
    QCOMPARE(dialog.windowModality(), Qt::ApplicationModal);
    QCOMPARE(dialog.size(), QSize(400, 300));
    QCOMPARE(dialog.parent(), nullptr);
    QCOMPARE(dialog.windowFlags(), QDialog().windowFlags());
    QVERIFY(!dialog.isVisible());
}

void TestTaskSelectDialogForm::members_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<QString>("expectedText");

    const auto row = [](const char *name, const char *type, const char *text) {
        QTest::newRow(name) << QByteArray(type) << QString(text);
    };
    row("verticalLayout_2", "QVBoxLayout", "");
    row("verticalLayout", "QVBoxLayout", "");
    row("formLayout", "QFormLayout", "");
    row("pushButton_accept", "QPushButton", "Accept");
    row("pushButton_cancel", "QPushButton", "Cancel");
    row("pushButton_Default", "QPushButton", "Default");
    row("label_2", "QLabel", "Open as the selected task type.");
    row("label_3", "QLabel", "Cancel the opening operation.");
    row("label_4", "QLabel", "Open as the default project mode.");
    row("label", "QLabel", "You should confirm the task type:");
    row("comboBox", "QComboBox", "");
    row("plainTextEdit", "QPlainTextEdit", "");
}

void TestTaskSelectDialogForm::members()
{
    UTaskSelectDialog dialog;
    const QObject *member = named(dialog, QTest::currentDataTag());
    QVERIFY(member);
    QTEST(QByteArray(member->metaObject()->className()), "type");
    QTEST(text(member), "expectedText");
}

void TestTaskSelectDialogForm::hasNothingElse()
{
    const UTaskSelectDialog dialog;
    QStringList names;
    for (const QObject *child : dialog.children())
        names.append(child->objectName());
    names.sort();
    QCOMPARE(names,
             QStringList({ "comboBox", "label", "label_2", "label_3", "label_4", "plainTextEdit",
                           "pushButton_Default", "pushButton_accept", "pushButton_cancel",
                           "verticalLayout_2" }));
}

void TestTaskSelectDialogForm::formPlaces_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("role");

    QTest::newRow("pushButton_accept") << 0 << int(QFormLayout::LabelRole);
    QTest::newRow("pushButton_cancel") << 1 << int(QFormLayout::LabelRole);
    QTest::newRow("pushButton_Default") << 2 << int(QFormLayout::LabelRole);
    QTest::newRow("label_2") << 0 << int(QFormLayout::FieldRole);
    QTest::newRow("label_3") << 1 << int(QFormLayout::FieldRole);
    QTest::newRow("label_4") << 2 << int(QFormLayout::FieldRole);
}

void TestTaskSelectDialogForm::formPlaces()
{
    UTaskSelectDialog dialog;
    const auto *form = dialog.findChild<QFormLayout *>("formLayout");
    int row = -1;
    QFormLayout::ItemRole role = QFormLayout::SpanningRole;
    form->getWidgetPosition(dialog.findChild<QWidget *>(QTest::currentDataTag()), &row, &role);
    QTEST(row, "row");
    QTEST(int(role), "role");
    QCOMPARE(form->rowCount(), 3);
}

void TestTaskSelectDialogForm::order()
{
    UTaskSelectDialog dialog;
    QCOMPARE(dialog.layout()->objectName(), QString("verticalLayout_2"));
    QCOMPARE(dialog.layout()->count(), 1);
    const QLayout *column = dialog.layout()->itemAt(0)->layout();
    QCOMPARE(column->objectName(), QString("verticalLayout"));
    QStringList names { column->itemAt(0)->layout()->objectName() };
    for (int i = 1; i < column->count(); ++i)
        names.append(column->itemAt(i)->widget()->objectName());
    QCOMPARE(names, QStringList({ "formLayout", "label", "comboBox", "plainTextEdit" }));
}

void TestTaskSelectDialogForm::buttons_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<bool>("isDefault");

    QTest::newRow("pushButton_accept") << 0 << true;
    QTest::newRow("pushButton_cancel") << 1 << false;
    QTest::newRow("pushButton_Default") << 2 << false;
}

void TestTaskSelectDialogForm::buttons()
{
    const UTaskSelectDialog dialog;
    auto *button = dialog.findChild<QPushButton *>(QTest::currentDataTag());
    QTEST(button->group()->id(button), "id");
    QTEST(button->isDefault(), "isDefault");
}

void TestTaskSelectDialogForm::buttonGroup()
{
    const UTaskSelectDialog dialog;
    const QButtonGroup *group = dialog.findChild<QPushButton *>("pushButton_accept")->group();
    QCOMPARE(group->parent(), nullptr);
    QCOMPARE(group->buttons().size(), 3);
}

void TestTaskSelectDialogForm::textFieldStaysEmpty()
{
    AUTH_SET registry = twoGroups();
    UTaskSelectDialog dialog;
    dialog.set(&registry);
    const auto *field = dialog.findChild<QPlainTextEdit *>("plainTextEdit");
    QString duringShow = "unseen";
    showAnd(dialog, [&] {
        duringShow = field->toPlainText();
        click(dialog, "pushButton_Default");
    });
    QCOMPARE(duringShow, QString());
    QCOMPARE(field->toPlainText(), QString());
}

void TestTaskSelectDialogForm::labelNamesTheComboBox()
{
    const UTaskSelectDialog dialog;
    QCOMPARE(dialog.findChild<QLabel *>("label")->buddy(), comboBox(dialog));
}

void TestTaskSelectDialogForm::chinese_data()
{
    QTest::addColumn<QString>("expectedText");

    QTest::newRow("UTaskSelectDialog") << "对话框";
    QTest::newRow("pushButton_accept") << "确定";
    QTest::newRow("pushButton_cancel") << "取消";
    QTest::newRow("pushButton_Default") << "默认";
    QTest::newRow("label_2") << "按所选任务类型打开。";
    QTest::newRow("label_3") << "取消打开操作。";
    QTest::newRow("label_4") << "按默认项目模式打开。";
    QTest::newRow("label") << "请确认任务类型：";
}

void TestTaskSelectDialogForm::chinese()
{
    const Chinese chinese;
    QVERIFY(chinese.isLoaded());
    UTaskSelectDialog dialog;
    QTEST(text(named(dialog, QTest::currentDataTag())), "expectedText");
}

void TestTaskSelectDialogForm::chineseBox()
{
    const Chinese chinese;
    QVERIFY(chinese.isLoaded());
    UTaskSelectDialog dialog;
    QStringList texts;
    showAndMeetBox(dialog, [&](QMessageBox *box) {
        texts = QStringList { box->windowTitle(), box->text() };
        dialog.close();
    });
    QCOMPARE(texts, QStringList({ "设置错误", "请先连接 Kelto。" }));
}

void TestTaskSelectDialogForm::clipsNoText_data()
{
    QTest::addColumn<bool>("inChinese");

    QTest::newRow("English") << false;
    QTest::newRow("Chinese") << true;
}

void TestTaskSelectDialogForm::clipsNoText()
{
    QFETCH(bool, inChinese);
    const auto chinese = inChinese ? std::make_unique<Chinese>() : nullptr;
    AUTH_SET registry = twoGroups();
    UTaskSelectDialog dialog;
    dialog.set(&registry);
    QStringList clipped;
    showAnd(dialog, [&] {
        const QRegularExpression ofOneLine("^(label|pushButton|comboBox)");
        const QList<QWidget *> widgets = dialog.findChildren<QWidget *>(ofOneLine);
        for (const QWidget *widget : widgets) {
            const QSize missing = widget->sizeHint() - widget->size();
            if (missing.width() > 0 || missing.height() > 0)
                clipped.append(widget->objectName());
        }
        dialog.close();
    });
    QCOMPARE(clipped, QStringList());
    QCOMPARE(dialog.size(), QSize(400, 300));
}

void TestTaskSelectDialogForm::makesRoomForNames_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<bool>("showsAll");

    QTest::newRow("short name") << 50 << true;
    QTest::newRow("name wider than the window at first") << 500 << true;
    QTest::newRow("name wider than the screen") << 5000 << false;
}

void TestTaskSelectDialogForm::makesRoomForNames()
{
    QFETCH(int, width);
    AUTH_SET registry = twoGroups();
    UTaskSelectDialog dialog;
    dialog.set(&registry);
    dialog.setItems(itemsOfWidth(dialog, width));
    bool showsAll = false;
    QRect place;
    showAnd(dialog, [&] {
        showsAll = showsAllOfTheName(dialog);
        place = dialog.frameGeometry();
        dialog.close();
    });
    QTEST(showsAll, "showsAll");
    QVERIFY(dialog.screen()->availableGeometry().contains(place));
}

void TestTaskSelectDialogForm::makesRoomForLaterNames()
{
    AUTH_SET registry = twoGroups();
    UTaskSelectDialog dialog;
    dialog.set(&registry);
    showAnd(dialog, [&] { dialog.close(); });
    dialog.setItems(itemsOfWidth(dialog, 450));
    bool atNextShowing = false;
    bool whileShown = false;
    showAnd(dialog, [&] {
        atNextShowing = showsAllOfTheName(dialog);
        dialog.setItems(itemsOfWidth(dialog, 520));
        whileShown = QTest::qWaitFor([&] { return showsAllOfTheName(dialog); });
        dialog.close();
    });
    QVERIFY(atNextShowing);
    QVERIFY(whileShown);
}

void TestTaskSelectDialogForm::makesRoomInAnotherFont()
{
    AUTH_SET registry = twoGroups();
    UTaskSelectDialog dialog;
    dialog.set(&registry);
    dialog.setItems(itemsOfWidth(dialog, 350));
    QFont font = dialog.font();
    font.setPointSizeF(font.pointSizeF() * 1.4);
    dialog.setFont(font);
    bool showsAll = false;
    showAnd(dialog, [&] {
        showsAll = showsAllOfTheName(dialog);
        dialog.close();
    });
    QVERIFY(showsAll);
}

void TestTaskSelectDialogForm::opensInTheMiddle_data()
{
    QTest::addColumn<int>("width");

    QTest::newRow("short name") << 50;
    QTest::newRow("name wider than the window at first") << 500;
}

void TestTaskSelectDialogForm::opensInTheMiddle()
{
    QFETCH(int, width);
    AUTH_SET registry = twoGroups();
    UTaskSelectDialog dialog;
    dialog.set(&registry);
    dialog.setItems(itemsOfWidth(dialog, width));
    QPoint offset;
    showAnd(dialog, [&] {
        offset = dialog.geometry().center() - dialog.screen()->availableGeometry().center();
        dialog.close();
    });
    // Qt leaves room for a frame of which it knows nothing yet.
    QVERIFY2(qAbs(offset.x()) <= 20 && qAbs(offset.y()) <= 50,
             qPrintable(QString("%1, %2").arg(offset.x()).arg(offset.y())));
}

QTEST_MAIN(TestTaskSelectDialogForm)
#include "tst_utaskselectdialog_form.moc"
