#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace tavrin {

struct LaunchEntry {
    QString text;  // as the list shows it
    QString form;  // the window it opens
};

// The launch list of the home window, by list index. The settings window
// shows the same texts in the same order.
const std::vector<LaunchEntry>& LaunchList();
QStringList LaunchListTexts();

// The Quick Launcher's table, keyed by text: the launch list and two more rows.
const std::vector<LaunchEntry>& QuickLauncherTable();

// The four Quick Launcher slots: 1 to 4, with their texts when none is stored.
constexpr int kQuickLauncherSlots = 4;
QString DefaultQuickLauncherSlot(int slot);

}  // namespace tavrin
