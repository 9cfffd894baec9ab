// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

#include "sourcewords.h"

#include <QRegularExpression>
#include <QSet>
#include <QStringList>

namespace {

// Keywords up to C++20, and other spellings of operators.
const char *const keywords
    = "alignas alignof and and_eq asm auto bitand bitor bool break case catch char char8_t "
      "char16_t char32_t class co_await co_return co_yield compl concept const const_cast "
      "consteval constexpr constinit continue decltype default delete do double dynamic_cast else "
      "enum explicit export extern false float for friend goto if inline int long mutable "
      "namespace new noexcept not not_eq nullptr operator or or_eq private protected public "
      "register reinterpret_cast requires return short signed sizeof static static_assert "
      "static_cast struct switch template this thread_local throw true try typedef typeid "
      "typename union unsigned using virtual void volatile wchar_t while xor xor_eq";

// Macros of Qt, C and POSIX that look like other names.
const char *const macros
    = "L_ctermid L_cuserid L_tmpnam P_tmpdir alloca assert assert_perror emit errno foreach "
      "forever i386 issubnormal linux math_errhandling offsetof pthread_cleanup_pop "
      "pthread_cleanup_push qApp qCCritical qCDebug qCInfo qCWarning qCritical qDebug qFatal "
      "qGuiApp qInfo qMove qPrintable qUtf16Printable qUtf8Printable qWarning sa_handler "
      "sa_sigaction sched_priority setjmp sigmask signals sigsetjmp slots st_atime st_ctime "
      "st_mtime stderr stdin stdout strdupa strndupa unix va_arg va_copy va_end va_start";

// Macros of C, C++ and POSIX whose names could be those of modules. Source text stops at the others
// with an error.
const char *const capitalMacros
    = "BUFSIZ CHAR_MAX CHAR_MIN CLOCKS_PER_SEC DBL_MAX DBL_MIN EDOM EILSEQ EOF ERANGE EXIT_FAILURE "
      "EXIT_SUCCESS FALSE FLT_MAX FLT_MIN HUGE_VAL INFINITY INT_MAX INT_MIN LONG_MAX LONG_MIN M_E "
      "M_LN2 M_LN10 M_PI M_SQRT2 NAN NDEBUG NULL RAND_MAX SEEK_CUR SEEK_END SEEK_SET SIGABRT "
      "SIGFPE "
      "SIGILL SIGINT SIGSEGV SIGTERM TRUE UINT_MAX";

// What the source text of an item is made of.
const char *const ownWords = "AUTH_INF AUTH_SET KeltoItem QString QStringList QVector VDataItem";

QSet<QString> allWords()
{
    QSet<QString> all;
    for (const char *words : { keywords, macros, capitalMacros, ownWords }) {
        const QStringList list = QString::fromLatin1(words).split(QLatin1Char(' '));
        all.unite(QSet<QString>(list.cbegin(), list.cend()));
    }
    return all;
}

} // namespace

bool isReservedWord(const QString &identifier)
{
    static const QSet<QString> words = allWords();
    // So Qt, Kelto and C call macros. Other capitals are names like any: "FEM", "CFD".
    static const QRegularExpression macro(
        QStringLiteral("\\A(?:(?:Q|QT|KELTO|GL)_.*|Q[A-Z].*(?:Literal|_iid)|"
                       "(?:PRI|SCN)[diouxX][A-Z0-9]+)\\z"));
    return words.contains(identifier) || macro.match(identifier).hasMatch()
        || identifier.contains(QLatin1String("__"))
        || (identifier.size() > 1 && identifier.at(0) == QLatin1Char('_')
            && identifier.at(1).isUpper());
}
