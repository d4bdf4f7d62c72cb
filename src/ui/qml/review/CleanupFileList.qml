import QtQuick
import Quillon

/// Every file that a clean-up would take, under its recipe.
FileList {
    id: list

    model: App.cleanup.files
    Accessible.name: qsTr("Files to be tidied")

    delegate: CleanupFileRow {
        width: ListView.view.width
        onTicked: on => App.cleanup.tickRow(index, on)
        onRevealAsked: App.cleanup.reveal(index)
        onPressed: list.currentIndex = index
    }

    function showRecipe(recipe) {
        const head = App.cleanup.headOf(recipe);
        if (head >= 0)
            positionViewAtIndex(head, ListView.Beginning);
    }
}
