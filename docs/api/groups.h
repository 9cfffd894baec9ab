// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

// The groups of the reference, which classes are in them, and an example of each class. Only
// Doxygen reads this; the examples are run by a test.

/**
 * @defgroup describe Describe modules
 * Items, their hints and their translation.
 *
 * @defgroup registry Ask the registry
 * One object knows all modules, and which mode of each exclusive group is selected.
 *
 * @defgroup choose Let the user choose
 * The dialog in which a person chooses a mode.
 *
 * @defgroup enter Enter values
 * Forms, in the second library.
 *
 * @defgroup check Check values
 * What is missing, and what is wrong with the rest.
 *
 * @defgroup calculate Calculate and show results
 * Between texts in files and numbers in formulas, and back to a person.
 *
 * @defgroup store Store values
 * INI files as lists of keys and values.
 */

/**
 * @class AUTH_INF auth_inf.h Kelto/AUTH_INF
 * @ingroup describe
 * @par Example
 * @snippet tst_reference.cpp AUTH_INF
 */

/**
 * @struct VDataItem vdataitem.h Kelto/VDataItem
 * @ingroup describe
 * @par Example
 * @snippet tst_reference.cpp VDataItem
 */

/**
 * @namespace KeltoParameterEntry
 * @ingroup describe
 * @par Example
 * @snippet tst_reference.cpp KeltoParameterEntry
 */

/**
 * @class KeltoItemHints keltoitemhints.h Kelto/KeltoItemHints
 * @ingroup describe
 * @par Example
 * @snippet tst_reference.cpp KeltoItemHints
 */

/**
 * @class KeltoItemTranslation keltoitemtranslation.h Kelto/KeltoItemTranslation
 * @ingroup describe
 * @par Example
 * @snippet tst_reference.cpp KeltoItemTranslation
 */

/**
 * @class AUTH_SET auth_set.h Kelto/AUTH_SET
 * @ingroup registry
 * @par Example
 * @snippet tst_reference.cpp AUTH_SET
 */

/**
 * @class VParameter vparameter.h Kelto/VParameter
 * @ingroup registry
 * @par Example
 * @snippet tst_reference.cpp VParameter
 */

/**
 * @class UTaskSelectDialog utaskselectdialog.h Kelto/UTaskSelectDialog
 * @ingroup choose
 * @par Example
 * @snippet tst_reference.cpp UTaskSelectDialog
 */

/**
 * @class KeltoParameterForm keltoparameterform.h Kelto/Forms/KeltoParameterForm
 * @ingroup enter
 * @par Example
 * @snippet tst_reference.cpp KeltoParameterForm
 */

/**
 * @class KeltoParameterModel keltoparametermodel.h Kelto/Forms/KeltoParameterModel
 * @ingroup enter
 * @par Example
 * @snippet tst_reference.cpp KeltoParameterModel
 */

/**
 * @class KeltoItemParameterVerify keltoitemparameterverify.h Kelto/KeltoItemParameterVerify
 * @ingroup check
 * @par Example
 * @snippet tst_reference.cpp KeltoItemParameterVerify
 */

/**
 * @struct KeltoItemFinding keltoitemfinding.h Kelto/KeltoItemFinding
 * @ingroup check
 * @par Example
 * @snippet tst_reference.cpp KeltoItemFinding
 */

/**
 * @class KeltoItemParameterTransform keltoitemparametertransform.h Kelto/KeltoItemParameterTransform
 * @ingroup calculate
 * @par Example
 * @snippet tst_reference.cpp KeltoItemParameterTransform
 */

/**
 * @class KeltoResultView keltoresultview.h Kelto/Forms/KeltoResultView
 * @ingroup calculate
 * @par Example
 * @snippet tst_reference.cpp KeltoResultView
 */

/**
 * @class VIniSettings vinisettings.h Kelto/VIniSettings
 * @ingroup store
 * @par Example
 * @snippet tst_reference.cpp VIniSettings
 */
