// SPDX-FileCopyrightText: The Kelto developers
// SPDX-License-Identifier: MIT

import QtQuick 2.15

// What docs/forms.md says about QML, as a host would write it.
Column {
    property alias rows: repeater

    Repeater {
        id: repeater

        model: parameters
        delegate: TextInput {
            property string label: model.name + " [" + model.unit + "]"
            property string problem: model.finding

            enabled: model.counts
            text: model.text
            onEditingFinished: model.text = text
        }
    }
}
