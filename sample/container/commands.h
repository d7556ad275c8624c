// The ids of the menu's commands. Read by the resource compiler too, hence the macros.
#pragma once

#define QZ_CONTAINER_MENU 1
#define QZ_CONTAINER_KEYS 1

#define QZ_FILE_OPEN 100
#define QZ_FILE_EXIT 101
#define QZ_THUMBNAILS_LARGER 110
#define QZ_THUMBNAILS_SMALLER 111
#define QZ_NEXT_PANE 112
#define QZ_PREVIOUS_PANE 113
#define QZ_EVENT_LOG 114
#define QZ_PAGE_FIRST 120
#define QZ_PAGE_PREVIOUS 121
#define QZ_PAGE_NEXT 122
#define QZ_PAGE_LAST 123

// One for each language, in the order of the menu.
#define QZ_LANGUAGE_ENGLISH 200
#define QZ_LANGUAGE_GERMAN 201
#define QZ_LANGUAGE_SPANISH 202
#define QZ_LANGUAGE_FRENCH 203
#define QZ_LANGUAGE_ITALIAN 204
#define QZ_LANGUAGE_JAPANESE 205
#define QZ_LANGUAGE_SWEDISH 206
