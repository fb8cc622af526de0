#pragma once

#include <QString>

/// A named text value of the settings store. Only its owner writes it.
struct Setting {
    const char* name;
    const char* missing; ///< the value that a missing one stands for
    const char* readers; ///< classes, separated by blanks
    const char* owner;   ///< empty: nothing writes it

    operator QString() const { return QString::fromLatin1(name); }
};

/// All settings of the program. A value outside this table is not kept.
namespace Settings {
inline constexpr Setting Fast{"FAST", "False", "StartSettings frmPrefs", "frmPrefs"};
inline constexpr Setting Agreement{"EULA", "", "StartSettings", "frmEULA"};
inline constexpr Setting DropShadows{"DROPSHADOWS", "True", "StartSettings", ""};
inline constexpr Setting Left{"UILEFT", "0", "StartSettings", "Flow"};
inline constexpr Setting Top{"UITOP", "0", "StartSettings", "Flow"};
inline constexpr Setting AutoRDI{"AUTORDI", "True", "StartSettings frmPrefs", "frmPrefs"};
inline constexpr Setting Limit50{"LIMIT50", "True", "StartSettings", "frmPrefs"};
inline constexpr Setting TipNumber{"TIPNUM", "0", "Tips", "Tips"};
inline constexpr Setting Installation{"INSTALLATION", "", "Community", "Community"};
inline constexpr Setting ReportState{"REPORTSTATE", "0", "frmReport", "frmReport"};
inline constexpr Setting ReportMode{"REPORTMODE", "BARS", "ucBarChart", "ucBarChart"};
inline constexpr Setting DailyMode{"DAILYMODE", "RDI", "ucDaily", "ucDaily"};
inline constexpr Setting SearchCustom{"SEARCH_CUSTOM", "1", "ucSearchResults", "ucSearchResults"};
inline constexpr Setting SearchRecipes{"SEARCH_RECIPES", "1", "ucSearchResults", "ucSearchResults"};
inline constexpr Setting SearchStock{"SEARCH_STOCK", "1", "ucSearchResults", "ucSearchResults"};
inline constexpr Setting SearchString{"SEARCH_STRING", "", "ucSearchResults", "ucSearchResults"};
inline constexpr Setting Meal{"OPMEAL", "0", "Meals", "ucSearchResults"};
inline constexpr Setting FromEmail{"FROMEMAIL", "", "frmSend", "frmSend"};
inline constexpr Setting ToEmail{"TOEMAIL", "", "frmSend", "frmSend"};
inline constexpr Setting Snapshots{"SNAPSHOTS", "", "OwnSnapshots", "OwnSnapshots"};
inline constexpr Setting Scale{"UISCALE", "100", "WindowScale", "WindowScale"};
inline constexpr Setting Look{"UISTYLE", "DESKTOP", "StyleChoice", "StyleChoice"};

inline constexpr const Setting* All[] = {
    &Fast,         &Agreement,     &DropShadows,  &Left,         &Top,        &AutoRDI,
    &Limit50,      &TipNumber,     &Installation, &ReportState,  &ReportMode, &DailyMode,
    &SearchCustom, &SearchRecipes, &SearchStock,  &SearchString, &Meal,       &FromEmail,
    &ToEmail,      &Snapshots,     &Scale,        &Look};
} // namespace Settings
