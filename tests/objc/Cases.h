/* The test cases of the Objective-C program: each is a function that notes itself before main. */
#pragma once

#import <Foundation/Foundation.h>

/* Defines a case. Its name is a sentence about behaviour. */
#define CASE(name)                                                     \
    static void Case##name(void);                                      \
    static void __attribute__((constructor)) Note##name(void)          \
    {                                                                  \
        NoteCase(#name, Case##name);                                   \
    }                                                                  \
    static void Case##name(void)

#define EXPECT(condition)                                              \
    ExpectTrue((condition) ? YES : NO, #condition, __FILE__, __LINE__)

/* Both nil counts as equal. */
#define EXPECT_TEXT(strActual, strExpected) \
    ExpectText((strActual), (strExpected), #strActual, __FILE__, __LINE__)

void NoteCase(const char* szName, void (*pCase)(void));
void ExpectTrue(BOOL bHolds, const char* szCondition, const char* szFile, int nLine);
void ExpectText(NSString* strActual,
                NSString* strExpected,
                const char* szActual,
                const char* szFile,
                int nLine);

/* Runs all cases, each in a pool of its own, and prints what failed. A report, if one is named, has
 * the numbers of cases and failures in the form of GoogleTest.
 * Returns the number of cases that failed. */
int RunCases(const char* szReport);
