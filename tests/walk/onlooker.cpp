// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "onlooker.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QFontInfo>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPixmap>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QStyle>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBar>

#include <qwt_scale_widget.h>
#include <qwt_text.h>

namespace {

template <typename Widget> Widget *find(const char *window, const QString &name)
{
    const QWidget *parent = Onlooker::window(window);
    Widget *found = parent ? parent->findChild<Widget *>(name) : nullptr;
    return found && found->isVisible() ? found : nullptr;
}

QPoint centreOf(const QWidget *widget, const QRect &area)
{
    return widget->isVisible() && !area.isEmpty() ? widget->mapToGlobal(area.center()) : QPoint();
}

/// The rows below @p parent, with the columns of each joined by " | ".
QStringList rowTexts(const QAbstractItemModel *model, const QModelIndex &parent = {})
{
    QStringList rows;
    for (int row = 0; row < model->rowCount(parent); ++row) {
        QStringList texts;
        for (int column = 0; column < model->columnCount(parent); ++column)
            texts.append(model->index(row, column, parent).data().toString());
        rows.append(texts.join(" | "));
        rows += rowTexts(model, model->index(row, 0, parent));
    }
    return rows;
}

/// The text that the widget shows itself, whatever its class calls it.
QString textOf(const QWidget *widget)
{
    for (const char *property : { "text", "currentText", "plainText" }) {
        if (widget && widget->property(property).isValid())
            return widget->property(property).toString();
    }
    return {};
}

/// Everything that a window says, in the order in which its widgets were made.
QString shownTexts(const QWidget *window)
{
    QStringList texts { window->windowTitle() };
    const auto widgets = window->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (!widget->isVisible())
            continue;
        const auto *view = qobject_cast<const QAbstractItemView *>(widget);
        if (view && view->model())
            texts += rowTexts(view->model());
        texts.append(textOf(widget));
    }
    texts.removeAll(QString());
    return texts.join('\n');
}

QString fontInWords()
{
    const QFontInfo font(QApplication::font());
    return QString("%1, %2 pixels, %3")
        .arg(font.family())
        .arg(font.pixelSize())
        .arg(QApplication::style()->objectName());
}

/// Whether the widget is too small for what it says.
bool isTooSmall(const QWidget *widget)
{
    const auto *label = qobject_cast<const QLabel *>(widget);
    if (label && label->wordWrap())
        return label->heightForWidth(label->width()) > label->height();
    const auto *axis = qobject_cast<const QwtScaleWidget *>(widget);
    if (axis)
        return axis->title().textSize(axis->font()).width() > qMax(axis->width(), axis->height());
    const auto *box = qobject_cast<const QComboBox *>(widget);
    if (box)
        return box->fontMetrics().horizontalAdvance(box->currentText()) > box->width();
    const bool isText = qobject_cast<const QTabBar *>(widget)
        || ((label || qobject_cast<const QAbstractButton *>(widget)) && !textOf(widget).isEmpty());
    const QSize needed = widget->sizeHint();
    return isText && (needed.width() > widget->width() || needed.height() > widget->height());
}

/// Whether a parent cuts off its edge. What a scroll area shows may reach beyond it.
bool isCutOff(const QWidget *widget)
{
    const QWidget *parent = widget->parentWidget();
    if (widget->isWindow() || qobject_cast<const QAbstractScrollArea *>(parent->parentWidget()))
        return false;
    return !parent->rect().contains(widget->geometry()) || isCutOff(parent);
}

QImage grabbed(const QRect &area)
{
    QScreen *screen = QApplication::primaryScreen();
    return screen->grabWindow(0, area.x(), area.y(), area.width(), area.height()).toImage();
}

} // namespace

QWidget *Onlooker::window(const char *className)
{
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->inherits(className) && window->isVisible())
            return window;
    }
    return nullptr;
}

bool Onlooker::isActive(const char *className)
{
    return window(className) && window(className)->isActiveWindow();
}

QString Onlooker::focus()
{
    const QWidget *widget = QApplication::focusWidget();
    // Some editors are put together from several widgets.
    while (widget && widget->objectName().isEmpty())
        widget = widget->parentWidget();
    return widget ? widget->objectName() : QString();
}

QString Onlooker::text(const char *window, const QString &widget)
{
    return textOf(find<QWidget>(window, widget));
}

QString Onlooker::row(const char *window, const QString &widget, const QString &name)
{
    const auto *parent = find<QWidget>(window, widget);
    const auto *view = parent ? parent->findChild<QAbstractItemView *>() : nullptr;
    const QStringList rows = view ? rowTexts(view->model()) : QStringList();
    return rows.filter(QRegularExpression('^' + QRegularExpression::escape(name) + " \\|"))
        .value(0);
}

QPoint Onlooker::position(const char *window, const QString &widget)
{
    const auto *found = find<QWidget>(window, widget);
    return found ? centreOf(found, found->rect()) : QPoint();
}

QPoint Onlooker::positionOfAction(const QString &action)
{
    const QWidget *main = window("QMainWindow");
    QAction *found = main ? main->findChild<QAction *>(action) : nullptr;
    const auto places = found ? found->associatedWidgets() : QList<QWidget *>();
    for (QWidget *place : places) {
        const auto *menu = qobject_cast<QMenu *>(place);
        const auto *bar = qobject_cast<QToolBar *>(place);
        if (menu && menu->isVisible())
            return centreOf(menu, menu->actionGeometry(found));
        if (bar && bar->widgetForAction(found) && !QApplication::activePopupWidget())
            return centreOf(bar->widgetForAction(found), bar->widgetForAction(found)->rect());
    }
    return {};
}

QPoint Onlooker::positionOfMenu(const QString &firstAction)
{
    const QWidget *main = window("QMainWindow");
    const auto *bar = main ? main->findChild<QMenuBar *>() : nullptr;
    const auto menus = main ? main->findChildren<QMenu *>() : QList<QMenu *>();
    for (QMenu *menu : menus) {
        const bool isIt = !menu->actions().isEmpty()
            && menu->actions().constFirst()->objectName() == firstAction;
        const auto *parent = qobject_cast<QMenu *>(menu->parentWidget());
        if (isIt && bar->actions().contains(menu->menuAction()))
            return centreOf(bar, bar->actionGeometry(menu->menuAction()));
        if (isIt && parent)
            return centreOf(parent, parent->actionGeometry(menu->menuAction()));
    }
    return {};
}

QPoint Onlooker::positionOfEntry(const char *window, const QString &comboBox, const QString &entry)
{
    const auto *box = find<QComboBox>(window, comboBox);
    if (!box || !box->view()->isVisible() || box->findText(entry) < 0)
        return {};
    const QRect place = box->view()->visualRect(box->model()->index(box->findText(entry), 0));
    return centreOf(box->view()->viewport(), place);
}

QPoint Onlooker::positionOfTab(const char *window, const QString &tabs, int index)
{
    const auto *found = find<QTabWidget>(window, tabs);
    return found ? centreOf(found->tabBar(), found->tabBar()->tabRect(index)) : QPoint();
}

QPoint Onlooker::positionOfAnswer(int standardButton)
{
    const auto *box = qobject_cast<QMessageBox *>(window("QMessageBox"));
    const auto *button = box ? box->button(QMessageBox::StandardButton(standardButton)) : nullptr;
    return button ? centreOf(button, button->rect()) : QPoint();
}

QStringList Onlooker::clippedTexts()
{
    QStringList clipped;
    const QWidget *window = QApplication::activeWindow();
    const auto widgets = window ? window->findChildren<QWidget *>() : QList<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (widget->isVisible() && (isTooSmall(widget) || isCutOff(widget)))
            clipped.append(
                QString("%1 %2 \"%3\"")
                    .arg(widget->metaObject()->className(), widget->objectName(), textOf(widget)));
    }
    return clipped;
}

QImage Onlooker::screen()
{
    return grabbed(QApplication::primaryScreen()->geometry());
}

QImage Onlooker::screenshot()
{
    QRect area;
    QStringList texts;
    const auto windows = QApplication::topLevelWidgets();
    for (const QWidget *window : windows) {
        if (!window->isVisible())
            continue;
        area |= window->frameGeometry();
        texts.append(shownTexts(window));
    }
    texts.sort(); // the program holds its windows in no order
    QImage image = grabbed(area);
    image.setText("Shown", texts.join('\n'));
    image.setText("Font", fontInWords());
    return image;
}
