#pragma once

/// Names of the settings that start, end, preferences and community pages read and write.
namespace SettingNames {
inline constexpr auto Fast = "FAST";
inline constexpr auto Agreement = "EULA";
inline constexpr auto DropShadows = "DROPSHADOWS";
inline constexpr auto Left = "UILEFT";
inline constexpr auto Top = "UITOP";
inline constexpr auto AutoRDI = "AUTORDI";
inline constexpr auto Limit50 = "LIMIT50";
inline constexpr auto TipNumber = "TIPNUM";
inline constexpr auto Installation = "INSTALLATION";
} // namespace SettingNames
