// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#ifndef PUBLISHEDFORMS_H
#define PUBLISHEDFORMS_H

#include "taskinput.h"

inline const char *const cantilever = "Beam:Cantilever";
inline const char *const simple = "Beam:Simply supported";
inline const char *const fixedBeam = "Beam:Fixed at both ends";
inline const char *const compression = "Helical spring:Compression";
inline const char *const extension = "Helical spring:Extension";
inline const char *const torsion = "Helical spring:Torsion";
inline const char *const thin = "Pressure vessel:Thin wall";
inline const char *const thick = "Pressure vessel:Thick wall";
inline const char *const steady = "Plane wall:Steady";
inline const char *const convection = "Plane wall:With convection";

inline const QStringList &allTasks()
{
    static const QStringList tasks { cantilever, simple, fixedBeam, compression, extension,
                                     torsion,    thin,   thick,     steady,      convection };
    return tasks;
}

/// The input in the units of the entries: N, mm and MPa, so that no formula below converts.
class Given
{
public:
    Given(const QString &task, const Changes &changes)
        : m_input(inputOf(task, changes))
    {
    }
    double operator()(const char *key) const { return m_input.value(key).toDouble(); }
    QString text(const char *key) const { return m_input.value(key).toString(); }
    QVector<double> list(const char *key) const { return numbersOf(m_input.value(key)); }

private:
    Changes m_input;
};

/// The results of @p task after published forms other than those that the workbench computes with,
/// in the units of the entries.
NumbersByKey published(const QString &task, const Changes &changes);

#endif
