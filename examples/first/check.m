#import <KZEkaMok/KZEkaMokObjC.h>
#include <stdio.h>

int main(int nCount, char** szArguments)
{
    NSAutoreleasePool* pPool = [[NSAutoreleasePool alloc] init];
    KZICsvConvMokEka* pConverter = [[[KZICsvConvMokEka alloc] init] autorelease];
    NSString* strPath = nCount > 1 ? [NSString stringWithUTF8String:szArguments[1]] : nil;
    KZIConvertResultEka* pResult = [pConverter CsvCheck:strPath];
    printf("%s %s\n", [[pResult Result] UTF8String], [[pResult DetailErrorInfo] UTF8String]);
    [pConverter Terminate];
    [pPool drain];
    return 0;
}
