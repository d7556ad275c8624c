// What is measured; each in a file of its own.
#pragma once

#include "benchmarks/report.h"

namespace qz::bench {

/// Rebuilding the records of long documents, against a bare loop of the same host calls.
void MeasureRebuild(Report& report);

/// Putting and reading the selection of long documents.
void MeasureSelecting(Report& report);

/// Deleting half the pages of a long document with the Delete key, against the bare host calls.
void MeasureDeletion(Report& report);

/// One paint, one hit test, one scroll step in a very long document, against a short one.
void MeasureGrowth(Report& report);

/// The memory of a record, and of the pictures of a document painted from end to end.
void MeasurePictures(Report& report);

/// Painting thumbnails from the cache, against bare copies of their size.
void MeasureCopying(Report& report);

/// Toggling a layer with thousands below it, against the bare writes to the host.
void MeasureLayers(Report& report);

/// Loading large and deep XML documents, against a bare pass of the reader.
void MeasureXml(Report& report);

/// Rebuilding and expanding large outlines, against the bare host calls and insertions.
void MeasureOutline(Report& report);

/// Listing many attributes of an object, against the bare host calls and insertions.
void MeasureInspector(Report& report);

/// Opening the settings of a long document with many fonts, against the bare reads.
void MeasureDocumentSettings(Report& report);

/// Formatting a number, against the system's own function.
void MeasureFormatting(Report& report);

}  // namespace qz::bench
