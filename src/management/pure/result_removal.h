#pragma once

#include <QByteArray>
#include <cstdint>

/// A store of hits without those of one record.
struct ResultRemoval {
    QByteArray content;
    /// The place of the record that went, from 0, the last one where there were several; -1 for none.
    std::int32_t position = -1;
};

/// Takes the hits with the number `autoID` out of the content of a store.
ResultRemoval WithoutResult(const QByteArray &content, std::int32_t autoID);
