// The ids of dialog templates and of their controls. Read by the resource compiler too, hence the macros.
// Assistive tools and automated tests find controls by them: an id once given keeps its meaning.
#pragma once

// The inspector.
#define QZ_DIALOG_INSPECTOR 119
#define QZ_INSPECTOR_TABS 203
#define QZ_INSPECTOR_LIST 205
#define QZ_INSPECTOR_DESCRIPTION 207
#define QZ_INSPECTOR_VALUE 209

// The value editors.
#define QZ_DIALOG_VALUE_BOOL 105
#define QZ_DIALOG_VALUE_FORMAT 117
#define QZ_DIALOG_VALUE_LIST 214
#define QZ_DIALOG_VALUE_EDIT 120
#define QZ_DIALOG_VALUE_ENUM 121
#define QZ_DIALOG_VALUE_COLOR 122
#define QZ_DIALOG_VALUE_FONT 123
#define QZ_DIALOG_VALUE_ACTIONS 124
#define QZ_DIALOG_VALUE_OBJECTS 125

// Controls of the value editors.
#define QZ_EDITOR_TEXT 301
#define QZ_EDITOR_BUTTON 302
#define QZ_EDITOR_UP_DOWN 303
#define QZ_EDITOR_CHECK 304
// The buttons of an enumeration's choices have the ids from here on, in their order.
#define QZ_EDITOR_CHOICES 1000

// The properties dialog.
#define QZ_DIALOG_PROPERTIES 114
#define QZ_PROPERTIES_PIN 401
#define QZ_PROPERTIES_OBJECTS 402
#define QZ_PROPERTIES_INSPECTOR 403
#define QZ_BITMAP_UNPINNED 423
#define QZ_BITMAP_PINNED 424

// The editor of colors. Its boxes have the ids from QZ_EDITOR_COLOR_BOXES on, in the order of the palette.
#define QZ_EDITOR_COLOR_LABEL 331
#define QZ_EDITOR_NO_COLOR 332
#define QZ_EDITOR_COLOR_PREVIEW 333
#define QZ_EDITOR_COLOR_BOXES 2000

// The editor of fonts. Its button is QZ_EDITOR_BUTTON.
#define QZ_EDITOR_FACE_LABEL 335
#define QZ_EDITOR_FACE 336
#define QZ_EDITOR_SIZE_LABEL 337
#define QZ_EDITOR_SIZE 338
#define QZ_EDITOR_BOLD 339
#define QZ_EDITOR_ITALIC 340
#define QZ_EDITOR_UNDERLINE 341
#define QZ_EDITOR_STRIKE_OUT 342

// The editor of formats.
#define QZ_EDITOR_FORMAT_LABEL 345
#define QZ_EDITOR_FORMATS_LABEL 346
#define QZ_EDITOR_FORMATS 347
#define QZ_EDITOR_PREVIEW_LABEL 348
#define QZ_EDITOR_PREVIEW 349

// The editor of action chains. Its read-only field is QZ_EDITOR_TEXT.
#define QZ_EDITOR_ACTIONS 361
#define QZ_EDITOR_ADD_ACTION 362
#define QZ_EDITOR_REMOVE_ACTION 363
#define QZ_EDITOR_EDIT_ACTION 364
#define QZ_EDITOR_MOVE_ACTION_UP 365
#define QZ_EDITOR_MOVE_ACTION_DOWN 366
#define QZ_EDITOR_ACTION_RESERVED 367
#define QZ_BITMAP_ADD_ACTION 418
#define QZ_BITMAP_REMOVE_ACTION 419
#define QZ_BITMAP_EDIT_ACTION 420
#define QZ_BITMAP_MOVE_ACTION_UP 421
#define QZ_BITMAP_MOVE_ACTION_DOWN 422

// The editor of object lists.
#define QZ_EDITOR_OBJECTS 371
#define QZ_EDITOR_FORM_FIELDS_ONLY 372

// The dialog of the editing grid.
#define QZ_DIALOG_GRID_UNITS 116
#define QZ_GRID_STEPS 215
#define QZ_GRID_SPIN 216
#define QZ_GRID_UNIT 217

// The document settings: the dialog, its tabs, the choice of a font's embedding.
#define QZ_DIALOG_DOCUMENT_SETTINGS 118
#define QZ_DIALOG_DOCUMENT_INFO 130
#define QZ_DIALOG_DOCUMENT_SECURITY 131
#define QZ_DIALOG_PAGE_SETUP 132
#define QZ_DIALOG_DOCUMENT_FONTS 133
#define QZ_DIALOG_FONT_EMBEDDING 213
#define QZ_DOCUMENT_TABS 500

// The fields have the ids from QZ_INFO_TITLE on: title, subject, author, creator, keywords, producer.
#define QZ_INFO_TITLE 510
#define QZ_INFO_SUBJECT 511
#define QZ_INFO_AUTHOR 512
#define QZ_INFO_CREATOR 513
#define QZ_INFO_KEYWORDS 514
#define QZ_INFO_PRODUCER 515
#define QZ_INFO_FURTHER 516

#define QZ_SECURITY_ALLOW_MODIFYING 234
#define QZ_SECURITY_ALLOW_PRINTING 235
#define QZ_SECURITY_ALLOW_COPYING 236
#define QZ_SECURITY_ALLOW_ANNOTATING 237
#define QZ_SECURITY_LEVEL 520
#define QZ_SECURITY_OWNER 521
#define QZ_SECURITY_OWNER_CONFIRMATION 522
#define QZ_SECURITY_USER 523
#define QZ_SECURITY_USER_CONFIRMATION 524
#define QZ_SECURITY_LEVEL_HINT 525

#define QZ_SETUP_LANDSCAPE 540
#define QZ_SETUP_PAPER 541
#define QZ_SETUP_WIDTH 542
#define QZ_SETUP_LENGTH 543
#define QZ_SETUP_BIN 544
#define QZ_SETUP_SCOPE_ALL 545
#define QZ_SETUP_SCOPE_CURRENT 546
#define QZ_SETUP_SCOPE_FROM_HERE 547
#define QZ_SETUP_MARGINS 548
#define QZ_SETUP_UNIT 549
#define QZ_SETUP_MARGIN_TOP 550
#define QZ_SETUP_MARGIN_BOTTOM 551
#define QZ_SETUP_MARGIN_LEFT 552
#define QZ_SETUP_MARGIN_RIGHT 553

#define QZ_FONTS_LIST 560
#define QZ_FONT_EMBED_NONE 570
#define QZ_FONT_EMBED_PARTIALLY 571
#define QZ_FONT_EMBED_FULLY 572

// The dialog of several pages on one.
#define QZ_DIALOG_NUP 134
#define QZ_NUP_PAPER_GROUP 700
#define QZ_NUP_KEEP_ORIGINAL 701
#define QZ_NUP_PAPER_LABEL 702
#define QZ_NUP_PAPER 703
#define QZ_NUP_WIDTH_LABEL 704
#define QZ_NUP_WIDTH 705
#define QZ_NUP_LENGTH_LABEL 706
#define QZ_NUP_LENGTH 707
#define QZ_NUP_PORTRAIT 708
#define QZ_NUP_LANDSCAPE 709
#define QZ_NUP_PAGES_GROUP 720
#define QZ_NUP_ROWS_LABEL 721
#define QZ_NUP_ROWS 722
#define QZ_NUP_ROWS_SPIN 723
#define QZ_NUP_COLUMNS_LABEL 724
#define QZ_NUP_COLUMNS 725
#define QZ_NUP_COLUMNS_SPIN 726
#define QZ_NUP_GAP_LABEL 727
#define QZ_NUP_GAP 728
#define QZ_NUP_COLUMNS_FIRST 729
#define QZ_NUP_RIGHT_TO_LEFT 730
#define QZ_NUP_BORDERS 731
#define QZ_NUP_PERFORATION 732
#define QZ_NUP_SKIP_CONTENT 733
#define QZ_NUP_SCALE_GROUP 740
#define QZ_NUP_ACTUAL_SIZE 741
#define QZ_NUP_FIT 742
#define QZ_NUP_CUSTOM_SCALE 743
#define QZ_NUP_PERCENT 744
#define QZ_NUP_PERCENT_SPIN 745
#define QZ_NUP_PICTURE_LABEL 750
#define QZ_NUP_PICTURE 751

// In every dialog that shows a settings record.
#define QZ_SETTINGS_DEFAULTS 760

// The dialog of the export to DOCX. Its fields have the ids from QZ_DOCX_FIELDS on, in the order of the
// record's keys, and the buttons beside them those from QZ_DOCX_CHOOSERS on.
#define QZ_DIALOG_DOCX 135
#define QZ_DOCX_SECTIONS_LABEL 770
#define QZ_DOCX_SECTIONS 771
#define QZ_DOCX_CHOOSERS 800
#define QZ_DOCX_FIELDS 1100

// How far a long operation is.
#define QZ_DIALOG_PROGRESS 136
#define QZ_PROGRESS_TEXT 780
#define QZ_PROGRESS_BAR 781
