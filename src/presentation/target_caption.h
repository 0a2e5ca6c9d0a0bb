#pragma once

#include "core/shared_state.h"

#include <QString>

/// The caption of `Label1` for a search target, 0 to 2, with its full-width colon.
inline QString TargetCaption(std::uint8_t target)
{
    switch (target) {
    case TargetWords: return QStringLiteral("単語：");
    case TargetPhrases: return QStringLiteral("熟語：");
    default: return QStringLiteral("単熟語：");
    }
}
