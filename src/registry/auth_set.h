// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef AUTH_SET_H
#define AUTH_SET_H

#include "auth_inf.h"
#include "kelto_export.h"
#include "vparameter.h"

#include <QPair>
#include <QString>
#include <QStringList>
#include <QVariant>
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
 * - Default parameters and results: auth_set_defaults.cpp
 * - Stored values: auth_set_values.cpp
 * - Log, paths and language: auth_set_environment.cpp
 * - Source text of modules: auth_set_code.cpp
 *
 * Names that several modules share, and the order and place of things, hold surprises:
 * docs/traps.md lists them.
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

    /// An empty registry of an application without a name, with the set values that the
    /// configuration file of such an application holds.
    AUTH_SET();

    /**
     * The registry of the application @p name in the version @p version.
     *
     * Writes the update information file as write_update() describes, and reads the set values from
     * the configuration file. Without any module the registry stays empty, forgets name and version
     * and reads nothing, and a message is written to the log, which is that of an application
     * without a name.
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

    /// Plain names of the exclusive groups, each once, in order of first appearance.
    QStringList exclusive_group_namelist() const;

    /// Translated names of the exclusive groups, each once, in order of first appearance. The list
    /// is shorter than exclusive_group_namelist() when two groups share a translated name.
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

    /// For each of @p codes, in order and with duplicates kept, the plain standard name of the
    /// first mode that has it as its plain or translated standard name; unknown codes are left out.
    QStringList currentModeMatching(QStringList codes) const;

    /// Number of entries of currentModeMatching().
    int currentModeMatchingCount(QStringList codes) const;

    ///@}
    /** @name Default parameters and results (auth_set_defaults.cpp)
     *
     * Every list is returned sorted by plain name, capital letters first. Where several parameters
     * of a list have one plain name, all their places hold copies of the one that came first.
     * "Equal" is VParameter::isEqual(). A **sub-group** is the group of a parameter; it matches in
     * either form. An entry of a module item that is not nine texts long gives an empty parameter.
     * Lists that are passed by pointer are only read; a null pointer stands for an empty list.
     */
    ///@{

    /// The parameters of the mode at the position of the first name pair of @p exclusiveGroup with
    /// @p mode as either member; duplicates are kept. Empty for an unknown group or mode.
    QVector<VParameter> defaultParameterList(QString exclusiveGroup, QString mode) const;

    /// The parameters of all modes of @p exclusiveGroup, equal ones once. Modes behind the last
    /// name pair have no name and add nothing.
    QVector<VParameter> defaultParameterList(QString exclusiveGroup) const;

    /// The parameters of all exclusive groups, merged in their order as mergingList() does.
    QVector<VParameter> defaultParameterList() const;

    /// Those of defaultParameterList() in the sub-group @p subGroup. The lists of all sub-groups
    /// are made when the first is asked for and kept until the modules change; so are those below.
    QVector<VParameter> defaultParameterListBySubGroup(QString subGroup) const;

    /// The parameters of all modes of @p exclusiveGroup in the sub-group @p subGroup, equal ones
    /// once.
    QVector<VParameter> defaultParameterListInSubGroup(QString exclusiveGroup,
                                                       QString subGroup) const;

    /// The results of @p item, duplicates kept; empty for a null pointer.
    QVector<VParameter> defaultResultList(const AUTH_INF *item) const;

    /// The results of the modules of @p exclusiveGroup, merged in their order as mergingList()
    /// does. Modules without the flag count for the modes of the group, and not here.
    QVector<VParameter> defaultResultList(QString exclusiveGroup) const;

    /// The results of all exclusive groups, merged in their order as mergingList() does.
    QVector<VParameter> defaultResultList() const;

    /// The parameters of @p first and then @p second, equal ones once, also inside of one list.
    QVector<VParameter> mergingList(const QVector<VParameter> *first,
                                    const QVector<VParameter> *second) const;

    /// The parameters of @p first that are equal to one of @p second; duplicates in @p first are
    /// kept.
    QVector<VParameter> sharingList(const QVector<VParameter> *first,
                                    const QVector<VParameter> *second) const;

    /// The distinct sub-groups, as pairs of plain and translated name, of the parameters of all
    /// exclusive groups, of one, or of one mode, which may be named in either form. Sorted by plain
    /// name, with equal plain names as in the lists of parameters.
    QVector<QPair<QString, QString>> defaultParameterSubGroupList() const;
    QVector<QPair<QString, QString>> defaultParameterSubGroupList(QString exclusiveGroup) const;
    QVector<QPair<QString, QString>> defaultParameterSubGroupList(QString exclusiveGroup,
                                                                  QString mode) const;

    /// Whether @p list has a parameter equal to @p p.
    bool isParameterContains(const QVector<VParameter> *list, const VParameter *p) const;

    /// Index of the first parameter of @p list equal to @p p; -1 when there is none.
    int indexParameterInList(const QVector<VParameter> *list, const VParameter *p) const;

    ///@}
    /** @name Stored values (auth_set_values.cpp)
     *
     * Four stores of values by key. The **set values** are the settings of the application; they
     * are read at construction from its configuration file, "Config/<application name>_config.ini"
     * below the current directory of the process, and written there by setValueInSet(). The
     * **calculation values**, the **group values** and the **temporary values** live as long as the
     * registry.
     *
     * Keys are compared exactly, and the first entry of a key counts. Operations with the suffix
     * `_p` hand out the registry's own storage for writing, which is valid until that store is
     * changed. Where the key (or the group) is not there they give the first value (or list) of the
     * store they searched, so ask for keys that may be missing without `_p`; in an empty store they
     * give a place of the registry's own whose content is of no consequence.
     */
    ///@{

    /// The set value of @p key; invalid when there is none.
    QVariant value_set(QString key) const;
    /// The calculation value of @p key; invalid when there is none.
    QVariant value_cal(QString key) const;
    /// A copy of the list of the group @p group; empty when there is none.
    QVector<QPair<QString, QVariant>> value_group(QString group) const;
    /// The value of @p key in the group @p group; invalid when there is none.
    QVariant value_group_at(QString group, QString key) const;

    QVariant *value_set_p(QString key);
    QVariant *value_cal_p(QString key);
    QVector<QPair<QString, QVariant>> *value_group_p(QString group);
    /// Searches the list that value_group_p() gives for @p group.
    QVariant *value_group_at_p(QString group, QString key);

    /// Makes @p values the list of the group @p group.
    void setDefaultSettings(QString group, QVector<QPair<QString, QVariant>> values);

    /// Sets one set value and writes all of them to the configuration file, whose directory is made
    /// where it is missing. Other keys of the file stay.
    void setValueInSet(QString key, QVariant value);

    /// Takes over the parameters of a calculation: for each key of the group "Attribute" in @p
    /// data, "Attribute/" and "Unit/" with the last part of the key, each with its value in @p
    /// data. A missing unit is stored as an invalid value. Changes nothing without that group.
    void getCalculationLData(QVector<QPair<QString, QVariant>> data);

    /// Gives the first temporary value of @p key the value @p value, or appends both.
    void set_temp(QString key, QVariant value);
    /// The temporary value of @p key; invalid when there is none.
    QVariant value_temp(QString key) const;
    /// Removes the first temporary value of @p key.
    void delete_temp(QString key);

    /// Writes @p values into the INI file @p path, in order, and keeps its other keys; always true.
    /// Missing directories are made. What cannot be stored is left out, and a file of which
    /// something would be lost is copied first, as VIniSettings::saveLocal() does it.
    bool save(QString path, const QVector<QPair<QString, QVariant>> *values) const;
    /// Sets every key of the INI file @p path in @p values: the first entry of the key gets the
    /// value, or both are appended. A file that cannot be read has no keys. Always true.
    bool load(QString path, QVector<QPair<QString, QVariant>> *values) const;

    ///@}
    /** @name Log, paths and language (auth_set_environment.cpp)
     *
     * All paths are absolute and start at the current directory of the process, whatever that is
     * at the time of the call. Where it has been removed, they are empty and nothing is written,
     * the set values neither.
     */
    ///@{

    /**
     * Appends one line to filepath_log() in UTF-8, the local time as "yyyy-MM-dd hh:mm:ss" and
     * @p text, and makes the directory "log" where it is missing. A line that cannot be written is
     * dropped, as is every line where something other than a file, a pipe for example, has the
     * name of the log.
     *
     * A line of any length is written at once, so that the lines of several processes do not mix.
     * @p text is written as it is: line feeds in it begin new lines without a time, and control
     * characters such as ESC and NUL reach whoever shows the file. Hosts that log the input of
     * others replace these first.
     */
    void log(QString text) const;

    /// The log file of today (local date): "log/yyyy-MM-dd_<application name>.log". The digits are
    /// ASCII in every language, here and in the log.
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
    /** @name Source text of modules (auth_set_code.cpp) */
    ///@{

    /// The source text of one module item per INI file of @p files, in order: what
    /// AUTH_INF::to_code() gives for what AUTH_INF::load_ini() reads. A file that is missing is
    /// created empty. The modules of the registry play no part.
    QStringList generate_AUTH_INF_to_code(QStringList files) const;

    /// AUTH_INF::to_code() of every module, in registry order.
    QStringList AUTH_INF_list_to_code() const;

    ///@}

private:
    std::unique_ptr<AUTH_SETPrivate> d;
};

#endif
