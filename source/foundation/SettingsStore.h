/// @file SettingsStore.h
/// @brief The per-user store of profile values and registry keys.
#pragma once

#include <QSettings>

#include <memory>

inline std::unique_ptr<QSettings> openSettingsStore()
{
    return std::make_unique<QSettings>(QSettings::NativeFormat, QSettings::UserScope,
                                       QStringLiteral("Orvane"), QStringLiteral("Velmo"));
}
