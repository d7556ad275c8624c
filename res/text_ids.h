// The ids of the string table. Read by the resource compiler too, hence the macros. Ids are public in effect:
// containers replace texts by them, so an id once given keeps its meaning.
#pragma once

// Names of the controls, as assistive tools and containers show them.
#define QZ_TEXT_THUMBNAILS 1003

// What the thumbnail pane tells the user when it refuses.
#define QZ_TEXT_ONLY_CONTIGUOUS_PAGES 300
#define QZ_TEXT_NOT_ALL_PAGES 301

// Entries of context menus.
#define QZ_TEXT_DELETE 32771
#define QZ_TEXT_CUT 53515
#define QZ_TEXT_COPY 53516
#define QZ_TEXT_PASTE 53517
