// The ids of the string table. Read by the resource compiler too, hence the macros. Ids are public in effect:
// containers replace texts by them, so an id once given keeps its meaning.
#pragma once

// Names of the controls, as assistive tools and containers show them.
#define QZ_TEXT_THUMBNAILS 1003
#define QZ_TEXT_BOOKMARKS 1004
#define QZ_TEXT_LAYERS 1005
#define QZ_TEXT_STATUS_BAR 1006

// What the thumbnail pane tells the user when it refuses.
#define QZ_TEXT_ONLY_CONTIGUOUS_PAGES 300
#define QZ_TEXT_NOT_ALL_PAGES 301

// Entries of context menus.
#define QZ_TEXT_DELETE 32771
#define QZ_TEXT_CUT 53515
#define QZ_TEXT_COPY 53516
#define QZ_TEXT_PASTE 53517

// The status bar: the word before the page's size, the names of its buttons and entry fields, and the units.
#define QZ_TEXT_PAGE 325
#define QZ_TEXT_FIRST_PAGE 326
#define QZ_TEXT_PREVIOUS_PAGE 327
#define QZ_TEXT_PAGE_NUMBER 328
#define QZ_TEXT_NEXT_PAGE 329
#define QZ_TEXT_LAST_PAGE 330
#define QZ_TEXT_ZOOM 331
#define QZ_TEXT_TWIPS 332
#define QZ_TEXT_MILLIMETRES 333
#define QZ_TEXT_INCHES 334

// The layers pane: what it tells the user when it refuses, and the entries of its menu.
#define QZ_TEXT_LAYER_ABOVE_HIDDEN 340
#define QZ_TEXT_SHOW_ONLY_THIS_LAYER 341
#define QZ_TEXT_SHOW_ALL_LAYERS 342
#define QZ_TEXT_HIDE_ALL_LAYERS 343
#define QZ_TEXT_RESET_LAYERS 344
#define QZ_TEXT_LAYER_PROPERTIES 345
