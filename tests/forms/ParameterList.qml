// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

import QtQuick 2.15

// What docs/forms.md says about QML, as a host would write it.
Column {
    Repeater {
        model: parameters
        delegate: TextInput {
            property string label: model.name + " [" + model.unit + "]"
            property string problem: model.finding

            objectName: model.key
            enabled: model.counts
            text: model.text
            onEditingFinished: model.text = text
        }
    }
}
