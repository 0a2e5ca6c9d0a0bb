#pragma once

#include "conversion/pure/file_checks.h"
#include "platform/failure/runtime_error.h"

#include <QString>
#include <cstdint>

/// A box of the conversions: its sound, its buttons and icon (dialogs::Style), its words.
struct ConversionBox {
    int beep = 0;
    int style = 0;
    QString title;
    QString text;
};

/// Sounds and shows a box; the answer.
int Show(const ConversionBox &box);
/// The same; whether the answer was はい or OK.
bool Agrees(const ConversionBox &box);

/// The question before a conversion of that format begins.
ConversionBox ConfirmationBox(const QString &formatName);
/// What a check says about the files.
ConversionBox CheckBox(FileCheck check, const ConvFiles &files);
/// The lines of the source could not be counted.
ConversionBox CountFailedBox(const QString &formatName);
/// The user stopped the counting, or it failed.
ConversionBox CountCancelledBox();
/// The source has no line.
ConversionBox NoDataBox(const QString &sourcePath);
/// The lines of a source of pairs are odd in number.
ConversionBox OddLinesBox(const QString &formatName);
/// More than 100 records could not be converted.
ConversionBox ManyBadRecordsBox(const QString &formatName);
/// A run-time failure of a run.
ConversionBox RunFailedBox(const RuntimeError &failure);
/// A source of pairs ended within a pair.
ConversionBox NoPairBox();
/// Closing the dialog is refused during a run.
ConversionBox CloseRefusedBox();

/// Reports of a run; `logPath` is where the bad records are kept, empty where there are none.
ConversionBox UnfinishedBox(std::int32_t badCount, const QString &logPath);
ConversionBox FinishedBox(std::int32_t recordNo, std::int32_t badCount, const QString &logPath);
/// The report of a format that has no bad records.
ConversionBox PlainlyFinishedBox();
