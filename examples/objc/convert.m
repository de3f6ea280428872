// Checks a CSV file and turns it into a document in memory. Prints its errors or what came out.
// convert FILE.csv
#import <KZEkaMok/KZEkaMokObjC.h>

#include <stdio.h>
#include <string.h>

static const int64_t KEY = 1;

/// Prints a failed result, one entry "record-column-code" a line. Returns whether it passed. A nil
/// result and an empty one haven't.
static BOOL Passed(KZIConvertResultEka* pResult)
{
    if ([[pResult Result] isEqualToString:[NSString stringWithUTF8String:PROCESS_OK]])
        return YES;
    NSArray* listEntry = [[pResult DetailErrorInfo] componentsSeparatedByString:@","];
    puts(pResult != nil ? [[listEntry componentsJoinedByString:@"\n"] UTF8String] : "no result");
    return NO;
}

static BOOL Convert(KZICsvConvMokEka* pConverter, NSString* strPath)
{
    KZIConvertResultEka* pCheck = [pConverter ELCsvCheck:strPath Param01:KEY];
    if (!Passed(pCheck))
        return NO;
    KZIConvertResultEka* pDocument =
        [pConverter ELCsvConvMok:KEY
                         Param01:@"90101"
                         Param02:@"9900000000000017"
                         Param03:nil
                         Param04:@"9990000000017"
                         Param05:@"見本&例証券株式会社"
                         Param06:@"紙原県見本市例町１丁目２番３号　見本ビル９階"
                         Param07:@"見本　太郎"
                         Param08:@"9900000000000025"
                         Param09:@"例田税理士事務所　例田　花子"
                         Param10:@"紙原県雛形市折目坂４－５－６"
                         Param11:[pCheck ProcId]];
    if (!Passed(pDocument))
        return NO;
    printf("%s: %s records, a document of %lu bytes\n", [[pCheck ProcId] UTF8String],
           [[pCheck RecordCount] UTF8String],
           (unsigned long)strlen([[pDocument MokData] UTF8String]));
    return YES;
}

int main(int nCount, char** szArguments)
{
    if (nCount != 2) {
        fprintf(stderr, "usage: %s FILE.csv\n", szArguments[0]);
        return 2;
    }
    NSAutoreleasePool* pPool = [[NSAutoreleasePool alloc] init];
    KZICsvConvMokEka* pConverter = [[[KZICsvConvMokEka alloc] init] autorelease];
    const BOOL bPassed = Convert(pConverter, [NSString stringWithUTF8String:szArguments[1]]);
    [pConverter Terminate];
    [pPool drain];
    return bPassed ? 0 : 1;
}
