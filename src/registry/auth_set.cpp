// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The modules of a registry: taking them in, numbering them, finding them.

#include "auth_set.h"

#include "registry/auth_set_p.h"

#include <algorithm>

namespace {

template <typename Predicate>
QVector<AUTH_INF> modulesThat(const QVector<AUTH_INF> &modules, Predicate matches)
{
    QVector<AUTH_INF> found;
    std::copy_if(modules.cbegin(), modules.cend(), std::back_inserter(found), matches);
    return found;
}

} // namespace

void AUTH_SETPrivate::numberModules(int first)
{
    for (int i = first; i < modules.size(); ++i) {
        // Writing only what is wrong leaves data that is shared with the host shared.
        if (modules.at(i).number != i)
            modules[i].number = i;
    }
}

void AUTH_SETPrivate::takeInModules(int first)
{
    listsBySubGroup.clear();
    if (!groupsMatchModules) {
        rebuildGroups();
        return;
    }
    groups.resetSelections();
    for (int i = first; i < modules.size(); ++i)
        groups.addModule(i, modules.at(i));
}

void AUTH_SETPrivate::rebuildGroups()
{
    groups = ExclusiveGroups();
    m_names.clear();
    groupsMatchModules = true;
    takeInModules(0);
}

void AUTH_SETPrivate::dropModules()
{
    modules.clear();
    m_names.clear();
    listsBySubGroup.clear();
    groups.dropModes();
    groupsMatchModules = false;
}

void AUTH_SETPrivate::gatherNames() const
{
    for (int i = m_names.size(); i < modules.size(); ++i)
        m_names.append(modules.at(i).name, modules.at(i).name_tr);
}

int AUTH_SETPrivate::moduleIndex(const QString &name) const
{
    gatherNames();
    return m_names.indexOfPlain(name);
}

bool AUTH_SETPrivate::hasModule(const QString &plainOrTranslatedName) const
{
    gatherNames();
    return m_names.indexOfEither(plainOrTranslatedName) >= 0;
}

QString AUTH_SETPrivate::text(int index, QString AUTH_INF::*field) const
{
    return index >= 0 && index < modules.size() ? modules.at(index).*field : QString();
}

AUTH_SET::AUTH_SET()
    : d(std::make_unique<AUTH_SETPrivate>())
{
    d->loadSetValues();
}

AUTH_SET::AUTH_SET(QString name, QString version, QVector<AUTH_INF> modules)
    : d(std::make_unique<AUTH_SETPrivate>())
{
    if (modules.isEmpty()) {
        log(QStringLiteral("Kelto的模块录入不能为空"));
        return;
    }
    d->applicationName = name;
    d->applicationVersion = version;
    acquire(modules);
    write_update();
    d->loadSetValues();
}

AUTH_SET::AUTH_SET(const AUTH_SET &other)
    : current_group(other.current_group)
    , current_mode(other.current_mode)
    , d(std::make_unique<AUTH_SETPrivate>(*other.d))
{
}

AUTH_SET &AUTH_SET::operator=(const AUTH_SET &other)
{
    if (this != &other) {
        current_group = other.current_group;
        current_mode = other.current_mode;
        *d = *other.d;
    }
    return *this;
}

AUTH_SET::~AUTH_SET() = default;

void AUTH_SET::clear()
{
    d->dropModules();
}

void AUTH_SET::acquire(QVector<AUTH_INF> modules)
{
    d->modules = modules;
    d->numberModules(0);
    d->rebuildGroups();
}

void AUTH_SET::append(QVector<AUTH_INF> modules)
{
    const int first = d->modules.size();
    d->modules += modules;
    d->numberModules(first);
    d->takeInModules(first);
}

void AUTH_SET::append(AUTH_INF module)
{
    const int first = d->modules.size();
    d->modules.append(module);
    d->numberModules(first);
    d->takeInModules(first);
}

void AUTH_SET::refresh_group()
{
    d->rebuildGroups();
}

int AUTH_SET::model_count() const
{
    return d->modules.size();
}

QString AUTH_SET::model_data(int i) const
{
    return d->text(i, &AUTH_INF::description);
}

QString AUTH_SET::model_name(int i) const
{
    return d->text(i, &AUTH_INF::name);
}

QString AUTH_SET::model_name_global(int i) const
{
    return d->text(i, &AUTH_INF::name_tr);
}

QString AUTH_SET::model_type(int i) const
{
    return d->text(i, &AUTH_INF::type);
}

QString AUTH_SET::model_type_global(int i) const
{
    return d->text(i, &AUTH_INF::type_tr);
}

QString AUTH_SET::model_group(int i) const
{
    return d->groups.names().value(i);
}

QString AUTH_SET::model_group_global(int i) const
{
    return d->groups.translatedNames().value(i);
}

QString AUTH_SET::name(int i) const
{
    return model_name(i);
}

QString AUTH_SET::information(int i) const
{
    return model_data(i);
}

QString AUTH_SET::information(QString name) const
{
    return information(index(name));
}

int AUTH_SET::index(QString name) const
{
    return d->moduleIndex(name);
}

bool AUTH_SET::model_exists(QString name) const
{
    return d->hasModule(name);
}

QVector<AUTH_INF> AUTH_SET::AUTH_INF_DATA() const
{
    return d->modules;
}

QVector<AUTH_INF> AUTH_SET::AUTH_INF_list_by_type(QString type) const
{
    return modulesThat(d->modules, [&type](const AUTH_INF &module) { return module.type == type; });
}

QVector<AUTH_INF> AUTH_SET::AUTH_INF_list_by_group(QString group) const
{
    return modulesThat(d->modules,
                       [&group](const AUTH_INF &module) { return module.group == group; });
}
