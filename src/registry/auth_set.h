// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef AUTH_SET_H
#define AUTH_SET_H

#include "auth_inf.h"
#include "kelto_export.h"

#include <QPair>
#include <QString>
#include <QStringList>
#include <QVector>

#include <memory>

class AUTH_SETPrivate;

/**
 * The registry of the calculation modules of one application.
 *
 * A host builds it once from its module items and asks it everything about them.
 *
 * Vocabulary:
 * - A **module** is one AUTH_INF. An **inner mode** is one of the ways in which it runs.
 * - An **exclusive group** is a group in which one mode at a time is selected. It comes into being
 *   with the first module that sets AUTH_INF::exclusive_group, and every module whose group has
 *   that name takes part, with the flag or without.
 * - The **modes** of an exclusive group are the inner modes of its modules one after the other, in
 *   registry order. A mode's **position** counts them from 0.
 * - The **name pairs** of an exclusive group are the distinct pairs of plain and translated inner
 *   mode names. Two modules with an equally named inner mode share one pair, so that there may be
 *   fewer pairs than modes.
 * - A **standard mode name** is application name, group and inner mode name joined by ":".
 * - Operations that end in `_global` and members of a pair called second give translated names,
 *   the others plain names. All operations that take an exclusive group accept either.
 *
 * Texts are compared exactly, with case. What is unknown or out of range gives an empty text, pair
 * or list, 0, -1 or false, and setters then change nothing; nothing is ever thrown.
 *
 * A registry is a copyable value; copies never see each other's later changes. It belongs to the
 * GUI thread: nothing is locked, not even for reading.
 *
 * Contents (topic: source file):
 * - Modules: auth_set.cpp
 * - Exclusive groups and modes: auth_set_groups.cpp
 * - Log, paths and language: auth_set_environment.cpp
 */
class KELTO_EXPORT AUTH_SET
{
public:
    /// Exclusive group of the mode that the user accepted last; empty at start. UTaskSelectDialog
    /// writes it.
    QString current_group;
    /// Inner mode that the user accepted last; empty at start. UTaskSelectDialog writes it.
    QString current_mode;

    /** @name Modules (auth_set.cpp) */
    ///@{

    /// An empty registry of an application without a name.
    AUTH_SET();

    /**
     * The registry of the application @p name in the version @p version.
     *
     * Writes the update information file as write_update() describes. Without any module the
     * registry stays empty and forgets name and version, and a message is written to the log, which
     * is that of an application without a name.
     */
    AUTH_SET(QString name, QString version, QVector<AUTH_INF> modules);

    AUTH_SET(const AUTH_SET &other);
    AUTH_SET &operator=(const AUTH_SET &other);
    ~AUTH_SET();

    /// Drops all modules and with them the modes of the exclusive groups. The names and the
    /// selections of the groups stay until refresh_group() or until modules are added.
    void clear();

    /// Replaces all modules, numbers them by position and does what refresh_group() does.
    void acquire(QVector<AUTH_INF> modules);

    /// Adds modules at the end, numbers them by position and does what refresh_group() does.
    void append(QVector<AUTH_INF> modules);
    void append(AUTH_INF module);

    /// Rebuilds the exclusive groups from the modules; the first mode of each becomes selected.
    void refresh_group();

    /// Number of modules.
    int model_count() const;

    /// Description of the module at @p i. Like the four below it expects 0 <= i < model_count();
    /// do not rely on the empty text that another index gives.
    QString model_data(int i) const;
    QString model_name(int i) const;
    QString model_name_global(int i) const;
    QString model_type(int i) const;
    QString model_type_global(int i) const;

    /// Name of the exclusive group at @p i, not the group of a module; empty when out of range.
    QString model_group(int i) const;
    /// As model_group(), from the list of translated names.
    QString model_group_global(int i) const;

    /// Plain name of the module at @p i; empty when out of range.
    QString name(int i) const;

    /// Description of the module at @p i; empty when out of range.
    QString information(int i) const;
    /// Description of the first module with the plain name @p name; empty when there is none.
    QString information(QString name) const;

    /// Position of the first module with the plain name @p name; -1 when there is none. A
    /// translated name is not found; model_exists() knows both.
    int index(QString name) const;

    /// Whether a module has the plain or translated name @p name.
    bool model_exists(QString name) const;

    /// A copy of all modules, in registry order.
    QVector<AUTH_INF> AUTH_INF_DATA() const;

    /// The modules of the plain type @p type, in registry order.
    QVector<AUTH_INF> AUTH_INF_list_by_type(QString type) const;

    /// The modules of the plain group @p group, in registry order.
    QVector<AUTH_INF> AUTH_INF_list_by_group(QString group) const;

    ///@}
    /** @name Exclusive groups and modes (auth_set_groups.cpp) */
    ///@{

    /// Plain names of the exclusive groups, without doubles, in order of first appearance.
    QStringList exclusive_group_namelist() const;

    /// Translated names of the exclusive groups, without doubles of their own. The list is shorter
    /// than exclusive_group_namelist() when two groups share a translated name.
    QStringList exclusive_group_namelist_global() const;

    /// Plain and translated name of each exclusive group. Entry i pairs entry i of either name
    /// list; a missing translated name is empty.
    QVector<QPair<QString, QString>> currentExclusiveGroupList() const;

    /// The first pair of currentExclusiveGroupList() with @p name as either member; a pair of empty
    /// texts when there is none.
    QPair<QString, QString> findExclusiveGroupName(QString name) const;

    /// Number of modes of @p group; 0 for an unknown group.
    int exclusive_group_mode_count(QString group) const;

    /// Plain name of the module that offers the mode at @p position; empty when there is none.
    QString exclusive_group_orginal_model(QString group, int position) const;

    /// Position of the selected mode; -1 for an unknown group.
    int exclusive_group_select(QString group) const;

    /**
     * The selected position of @p group, to be read and written in place; nullptr for an unknown
     * group. A position that is not one of the group's selects nothing.
     *
     * The registry owns it. It is valid until modules are added or replaced, refresh_group() is
     * called, or the registry is assigned to or destroyed.
     */
    int *exclusive_group_mode_pointer(QString group);

    /// Selects the mode at @p position; changes nothing when the group has no such mode.
    void exclusive_group_set_mode(QString group, int position);

    /// Selects the mode whose position is that of the first name pair with the plain name of
    /// @p mode, which may be given in either form; changes nothing for an unknown one.
    void exclusive_group_set_mode(QString group, QString mode);

    /// The name pairs of the modules of @p group, each once, in order of first appearance; empty
    /// for an unknown group.
    QVector<QPair<QString, QString>> exclusive_group_inner_mode_namelist_at(QString group) const;

    /// The same as exclusive_group_inner_mode_namelist_at().
    QVector<QPair<QString, QString>> findExclusiveGroupInnerModeList(QString group) const;

    /// The first name pair of @p group with @p mode as either member; a pair of empty texts when
    /// there is none.
    QPair<QString, QString> findExclusiveGroupInnerModeName(QString group, QString mode) const;

    /// Index of the name pair of @p mode in exclusive_group_inner_mode_namelist_at(); -1 when there
    /// is none, and for a group or a mode without a plain name.
    int exclusive_group_innerMode_index(QString group, QString mode) const;

    /// Module index and description of each mode of @p group, in mode order. A mode without a
    /// description has an empty one. The list ends after 1,000,000 modes, so that a senseless
    /// AUTH_INF::inner_mode_count cannot use up the memory.
    QVector<QPair<int, QString>> exclusive_group_mode_description(QString group) const;

    /// The parameter entries of the mode at @p position; empty when there is no such mode.
    QVector<QStringList> exclusive_group_parameter_settings_origin(QString group,
                                                                   int position) const;

    /// The parameter entries of the mode at the position of the first name pair with @p mode as
    /// either member; empty when there is none.
    QVector<QStringList> exclusive_group_parameter_settings_origin(QString group,
                                                                   QString mode) const;

    /// The name pair at the selected position; a pair of empty texts when there is none. Where
    /// modes share names this need not be the name pair of the selected mode.
    QPair<QString, QString> currentExclusiveGroupSelect(QString group) const;

    /// Application name, @p group and @p mode joined by ":". Nothing is looked up or escaped.
    QString stdModeNameForm(QString group, QString mode) const;

    /// Plain and translated standard mode name of every name pair of every exclusive group, in the
    /// order of the groups, whatever is selected.
    QVector<QPair<QString, QString>> currentModeList() const;

    /// For each of @p codes, in order and with doubles kept, the plain standard name of the first
    /// mode that has it as its plain or translated standard name; unknown codes are left out.
    QStringList currentModeMatching(QStringList codes) const;

    /// Number of entries of currentModeMatching().
    int currentModeMatchingCount(QStringList codes) const;

    ///@}
    /** @name Log, paths and language (auth_set_environment.cpp)
     *
     * All paths are absolute and start at the current directory of the process, whatever that is
     * at the time of the call.
     */
    ///@{

    /// Appends one line, local time and @p text, to filepath_log() in UTF-8, and makes the
    /// directory "log" where it is missing. A line that cannot be written is dropped.
    void log(QString text) const;

    /// The log file of today (local date): "log/yyyy-MM-dd_<application name>.log".
    QString filepath_log() const;

    /// The updater script: "Update/Update.bat" on Windows, "Update/Update.sh" elsewhere.
    QString filepath_updater() const;

    /// The update information file: "Config/update.ini".
    QString filepath_update_inf() const;

    /**
     * Writes the application name and version as "Current/Name" and "Current/Version" to
     * filepath_update_inf(), if a module has the plain name "Update". Other keys of the file stay.
     *
     * Applications called Member, Membership or General never write it; case, "-" and "_" do not
     * count for this.
     */
    void write_update() const;

    /// The locale name of a language identifier: "zh_CN" for 1, "en" for every other number.
    QString language_local(int id) const;

    /// The name of the system's locale, for example "en_US".
    QString language_local() const;

    /// The identifier whose locale name is @p name: 1 for "zh_CN", 0 for every other text.
    int language_ID(QString name) const;

    ///@}

private:
    std::unique_ptr<AUTH_SETPrivate> d;
};

#endif
