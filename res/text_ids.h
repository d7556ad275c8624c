// The ids of the string table. Read by the resource compiler too, hence the macros. Ids are public in effect:
// containers replace texts by them, so an id once given keeps its meaning.
#pragma once

// Names of the controls, as assistive tools and containers show them.
#define QZ_TEXT_THUMBNAILS 1003
