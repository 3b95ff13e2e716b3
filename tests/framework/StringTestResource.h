// Numbers of the texts of StringTest.rc.
#pragma once

#define IDS_STRING_TEST_PLAIN   40001
#define IDS_STRING_TEST_FORMAT  40002
#define IDS_STRING_TEST_INSERTS 40003
#define IDS_STRING_TEST_MESSAGE 40004
#define IDS_STRING_TEST_MISSING 40005 // has no text, in a block that exists
#define IDS_STRING_TEST_LAST    40015 // the last place of its block
#define IDS_STRING_TEST_NOBLOCK 41000 // has no text, in a block that does not exist
