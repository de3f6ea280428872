/* A host in Objective-C: what the table of cases, which drives every operation, doesn't reach. */
#import <KZEkaMok/KZEkaMokObjC.h>

#include <objc/runtime.h>
#include <stdio.h>
#include <string.h>
#include <unistd.h>

#import "Cases.h"

void ThrowFromCpp(void);

enum
{
    WARM_UP_CALLS = 200,
    CALLS = 3000,
    KEPT_PAGES = 256  // 1 MiB: far below one kept result for each call
};

static NSString* strSample;   // a file of procedure PGE5020 that passes
static NSString* strRefused;  // one of the same procedure that is refused

/* A text that raises, or throws, when it is asked for its bytes. */
typedef enum
{
    RAISE_EXCEPTION,
    RAISE_TEXT,
    THROW_CPP,
} Mishap;

@interface RaisingText : NSString {
    Mishap m_eMishap;
}
- (id)initWithMishap:(Mishap)eMishap;
@end

@implementation RaisingText

- (id)initWithMishap:(Mishap)eMishap
{
    self = [super init];
    if (self != nil)
        m_eMishap = eMishap;
    return self;
}

- (NSUInteger)length
{
    return 1;
}

- (unichar)characterAtIndex:(NSUInteger)nIndex
{
    (void)nIndex;
    return 'a';
}

- (const char*)cStringUsingEncoding:(NSStringEncoding)eEncoding
{
    (void)eEncoding;
    switch (m_eMishap) {
        case RAISE_EXCEPTION:
            [NSException raise:@"TestException" format:@"raised by a test"];
            break;
        case RAISE_TEXT:
            @throw @"raised by a test";
        case THROW_CPP:
            ThrowFromCpp();
            break;
    }
    return "";
}

@end

/* A text that notes the encoding it is asked for. */
@interface NotingText : NSString {
@public
    NSStringEncoding m_eAsked;
}
@end

@implementation NotingText

- (NSUInteger)length
{
    return 0;
}

- (unichar)characterAtIndex:(NSUInteger)nIndex
{
    (void)nIndex;
    return 0;
}

- (const char*)cStringUsingEncoding:(NSStringEncoding)eEncoding
{
    m_eAsked = eEncoding;
    return "";
}

@end

static NSString* Raising(Mishap eMishap)
{
    return [[[RaisingText alloc] initWithMishap:eMishap] autorelease];
}

/* A converter after Terminate, so that no key of an earlier case is left. */
static KZICsvConvMokEka* Converter(void)
{
    KZICsvConvMokEka* pConverter = [[[KZICsvConvMokEka alloc] init] autorelease];
    [pConverter Terminate];
    return pConverter;
}

static void ExpectFields(KZIConvertResultEka* pResult,
                         NSString* strResult,
                         NSString* strDetailErrorInfo,
                         NSString* strRecordCount,
                         NSString* strProcId,
                         NSString* strMokData)
{
    EXPECT(pResult != nil);
    EXPECT_TEXT([pResult Result], strResult);
    EXPECT_TEXT([pResult DetailErrorInfo], strDetailErrorInfo);
    EXPECT_TEXT([pResult RecordCount], strRecordCount);
    EXPECT_TEXT([pResult ProcId], strProcId);
    EXPECT_TEXT([pResult MokData], strMokData);
}

/* Converts the kept sample for a filer of this name. */
static KZIConvertResultEka* ConvertKept(KZICsvConvMokEka* pConverter, NSString* strName)
{
    return [pConverter ELCsvConvMok:1
                            Param01:@"90101"
                            Param02:@"9900000000000017"
                            Param03:nil
                            Param04:@"9990000000017"
                            Param05:strName
                            Param06:@"紙原県見本市例町１丁目２番３号"
                            Param07:nil
                            Param08:nil
                            Param09:nil
                            Param10:nil
                            Param11:@"PGE5020"];
}

/* Resident pages of this process. */
static long ResidentPages(void)
{
    long lAll = 0;
    long lResident = -1;
    FILE* pFile = fopen("/proc/self/statm", "r");
    if (pFile == NULL)
        return -1;
    if (fscanf(pFile, "%ld %ld", &lAll, &lResident) != 2)
        lResident = -1;
    fclose(pFile);
    return lResident;
}

/* Puts another function in the place of a method for the length of a case. */
static IMP Exchange(Class pClass, SEL pSelector, IMP pMethod)
{
    return method_setImplementation(class_getInstanceMethod(pClass, pSelector), pMethod);
}

// --- the result ---

CASE(InitializeGivesFiveEmptyTexts)
{
    KZIConvertResultEka* pResult = [[[KZIConvertResultEka alloc] init] autorelease];
    [pResult setResult:@"a"];
    [pResult setDetailErrorInfo:@"b"];
    [pResult setRecordCount:@"c"];
    [pResult setProcId:@"d"];
    [pResult setMokData:@"e"];
    [pResult initialize];
    ExpectFields(pResult, @"", @"", @"", @"", @"");
}

CASE(EachPropertyGivesWhatItWasSetTo)
{
    KZIConvertResultEka* pResult = [[[KZIConvertResultEka alloc] init] autorelease];
    [pResult initialize];
    pResult.Result = @"S_OK";
    pResult.DetailErrorInfo = @"0001-00002-HE70001E";
    pResult.RecordCount = @"3";
    pResult.ProcId = @"PGE5020";
    pResult.MokData = @"書類";
    ExpectFields(pResult, @"S_OK", @"0001-00002-HE70001E", @"3", @"PGE5020", @"書類");
}

CASE(APropertyHoldsACopy)
{
    KZIConvertResultEka* pResult = [[[KZIConvertResultEka alloc] init] autorelease];
    NSMutableString* strText = [NSMutableString stringWithString:@"before"];
    [pResult setMokData:strText];
    [strText setString:@"after"];
    EXPECT_TEXT([pResult MokData], @"before");
}

CASE(AResultReleasesItsTexts)
{
    NSMutableString* strText = [[NSMutableString alloc] initWithString:@"text"];
    NSAutoreleasePool* pPool = [[NSAutoreleasePool alloc] init];
    KZIConvertResultEka* pResult = [[KZIConvertResultEka alloc] init];
    [pResult setResult:strText];
    NSString* strHeld = [[pResult Result] retain];
    [pPool drain];
    const NSUInteger nBefore = [strHeld retainCount];
    [pResult release];
    EXPECT([strHeld retainCount] == nBefore - 1);
    [strHeld release];
    [strText release];
}

// --- the selectors ---

CASE(EverySelectorIsThere)
{
    static const char* const SELECTORS[] = {
        "CsvCheck:",
        "CsvConvMok:Param01:Param02:Param03:Param04:Param05:Param06:Param07:Param08:Param09:"
        "Param10:Param11:Param12:Param13:",
        "ELCsvCheck:Param01:",
        "ELCsvConvMok:Param01:Param02:Param03:Param04:Param05:Param06:Param07:Param08:Param09:"
        "Param10:Param11:",
        "CsvWrite:Param01:",
        "Terminate",
        "CsvCheckFinance:",
        "CsvConvMokFinance:mokPathName:zeimushoCD:nozeishaId:kojinBango:hojinBango:nozeishaNm:"
        "nozeishaAdr:daihyoNm:dairiId:dairiNm:dairiAdr:tetsuzuki:teishutsuEra:teishutsuYear:"
        "teishutsuMonth:teishutsuDay:softName:nozeishaZip1:nozeishaZip2:",
        "ELCsvCheckFinance:csvDistKey:",
        "ELCsvConvMokFinance:zeimushoCD:nozeishaId:kojinBango:hojinBango:nozeishaNm:nozeishaAdr:"
        "daihyoNm:dairiId:dairiNm:dairiAdr:tetsuzuki:teishutsuEra:teishutsuYear:teishutsuMonth:"
        "teishutsuDay:softName:nozeishaZip1:nozeishaZip2:",
        "CsvCheckCrossBorder:",
        "CsvConvMokCrossBorder:mokPathName:zeimushoCD:teishutsuEra:teishutsuYear:teishutsuMonth:"
        "teishutsuDay:nozeishaId:kojinBango:hojinBango:nozeishaNm:nozeishaZip1:nozeishaZip2:"
        "nozeishaAdr:daihyoNm:dairiId:dairiNm:dairiAdr:tetsuzuki:softName:",
        "ELCsvCheckCrossBorder:csvDistKey:",
        "ELCsvConvMokCrossBorder:zeimushoCD:teishutsuEra:teishutsuYear:teishutsuMonth:"
        "teishutsuDay:nozeishaId:kojinBango:hojinBango:nozeishaNm:nozeishaZip1:nozeishaZip2:"
        "nozeishaAdr:daihyoNm:dairiId:dairiNm:dairiAdr:tetsuzuki:softName:",
    };
    for (size_t n = 0; n < sizeof SELECTORS / sizeof *SELECTORS; ++n) {
        const BOOL bThere = [KZICsvConvMokEka
            instancesRespondToSelector:sel_registerName(SELECTORS[n])];
        ExpectTrue(bThere, SELECTORS[n], __FILE__, __LINE__);
    }
}

CASE(ThereIsNoOtherSelector)
{
    unsigned int nMethods = 0;
    free(class_copyMethodList([KZICsvConvMokEka class], &nMethods));
    EXPECT(nMethods == 14);
}

CASE(TheKeyIsASigned64BitInteger)
{
    KZICsvConvMokEka* pConverter = Converter();
    NSMethodSignature* pSignature =
        [pConverter methodSignatureForSelector:@selector(ELCsvCheck:Param01:)];
    EXPECT(strcmp([pSignature getArgumentTypeAtIndex:3], @encode(int64_t)) == 0);
    // Of its lower half alone, this key would be the right key 1.
    ExpectFields([pConverter ELCsvCheck:strSample Param01:4294967297LL], @"E_FAIL",
                 @"9999-00002-HE70009E", @"", @"", @"");
}

CASE(TheConstantsAreTheLibrarys)
{
    EXPECT(strcmp(PROCESS_OK, "S_OK") == 0);
    EXPECT(strcmp(PROCESS_FAIL, "E_FAIL") == 0);
    EXPECT(KZEkaMokVersionNumber == 2.0);
    EXPECT(strcmp(KZEkaMokVersionString,
                  "@(#)PROGRAM:KZEkaMok  PROJECT:KZEkaMok-2.0.0.0\n") == 0);
}

// --- nil ---

CASE(ANilPathIsRefusedAsAMissingArgument)
{
    ExpectFields([Converter() CsvCheck:nil], @"E_FAIL", @"9999-00001-HE70001E", @"", @"", @"");
}

CASE(ANilPathIsRefusedByEachFamilysChecks)
{
    KZICsvConvMokEka* pConverter = Converter();
    NSString* const strDetail = @"9999-00001-HE70001E";
    EXPECT_TEXT([[pConverter ELCsvCheck:nil Param01:1] DetailErrorInfo], strDetail);
    EXPECT_TEXT([[pConverter CsvCheckFinance:nil] DetailErrorInfo], strDetail);
    EXPECT_TEXT([[pConverter ELCsvCheckFinance:nil csvDistKey:1] DetailErrorInfo], strDetail);
    EXPECT_TEXT([[pConverter CsvCheckCrossBorder:nil] DetailErrorInfo], strDetail);
    EXPECT_TEXT([[pConverter ELCsvCheckCrossBorder:nil csvDistKey:1] DetailErrorInfo], strDetail);
}

CASE(NilTextsToCsvWriteAreAFault)
{
    ExpectFields([Converter() CsvWrite:nil Param01:nil], @"E_FAIL", @"0000-00000-HE70018E", @"",
                 @"", @"");
}

CASE(FieldsThatAreNotSetAreEmptyAndNotNil)
{
    ExpectFields([Converter() CsvCheck:strSample], @"S_OK", @"", @"", @"PGE5020", @"");
}

// --- text ---

CASE(JapaneseTextCrossesBothWaysWithoutChange)
{
    KZICsvConvMokEka* pConverter = Converter();
    EXPECT_TEXT([[pConverter ELCsvCheck:strSample Param01:1] Result], @"S_OK");
    KZIConvertResultEka* pResult = ConvertKept(pConverter, @"見本　例証券株式会社");
    EXPECT_TEXT([pResult Result], @"S_OK");
    EXPECT_TEXT([pResult ProcId], @"");
    NSString* const strElement =
        @"<NOZEISHA_NM ID=\"NOZEISHA_NM\">見本　例証券株式会社</NOZEISHA_NM>";
    EXPECT([[pResult MokData] rangeOfString:strElement].location != NSNotFound);
    EXPECT([[pResult MokData] hasSuffix:@"</DATA>"]);
}

CASE(AJapanesePathNamesTheFile)
{
    NSString* const strPath = @"書類　一号.csv";
    unlink([strPath fileSystemRepresentation]);
    EXPECT([[NSFileManager defaultManager] copyItemAtPath:strSample toPath:strPath error:NULL]);
    ExpectFields([Converter() CsvCheck:strPath], @"S_OK", @"", @"", @"PGE5020", @"");
    unlink([strPath fileSystemRepresentation]);
}

CASE(AnArgumentIsAskedForItsBytesInUtf8)
{
    NotingText* strNoting = [[[NotingText alloc] init] autorelease];
    [Converter() CsvCheck:strNoting];
    EXPECT(strNoting->m_eAsked == 4);
}

CASE(AMutableTextMayChangeAfterTheCall)
{
    NSMutableString* strPath = [NSMutableString stringWithString:strSample];
    KZIConvertResultEka* pResult = [Converter() CsvCheck:strPath];
    [strPath setString:@""];
    EXPECT_TEXT([pResult ProcId], @"PGE5020");
}

// --- ownership ---

CASE(AResultLivesUntilThePoolIsDrained)
{
    KZICsvConvMokEka* pConverter = Converter();
    NSAutoreleasePool* pPool = [[NSAutoreleasePool alloc] init];
    KZIConvertResultEka* pResult = [[pConverter CsvCheck:nil] retain];
    EXPECT([pResult retainCount] == 2);
    [pPool drain];
    EXPECT([pResult retainCount] == 1);
    EXPECT_TEXT([pResult Result], @"E_FAIL");
    [pResult release];
}

CASE(ArgumentsAreReleasedAfterTheCall)
{
    NotingText* strNoting = [[NotingText alloc] init];
    [Converter() CsvCheck:strNoting];
    EXPECT([strNoting retainCount] == 1);
    [strNoting release];
}

CASE(ArgumentsAreReleasedAfterACallThatBrokeOff)
{
    RaisingText* strRaising = [[RaisingText alloc] initWithMishap:RAISE_EXCEPTION];
    [Converter() CsvCheck:strRaising];
    EXPECT([strRaising retainCount] == 1);
    [strRaising release];
}

CASE(EachCallGivesAResultOfItsOwn)
{
    KZICsvConvMokEka* pConverter = Converter();
    KZIConvertResultEka* pFirst = [pConverter CsvCheck:strSample];
    KZIConvertResultEka* pSecond = [pConverter CsvCheck:nil];
    EXPECT(pFirst != pSecond);
    ExpectFields(pFirst, @"S_OK", @"", @"", @"PGE5020", @"");
}

CASE(ThousandsOfCallsDoNotGrow)
{
    KZICsvConvMokEka* pConverter = Converter();
    long lBefore = 0;
    for (int n = 0; n < WARM_UP_CALLS + CALLS; ++n) {
        NSAutoreleasePool* pPool = [[NSAutoreleasePool alloc] init];
        if (n == WARM_UP_CALLS)
            lBefore = ResidentPages();
        [pConverter CsvCheck:@"無い.csv"];
        [pConverter CsvWrite:@"/無い/場所.csv" Param01:@"abc"];
        [pConverter CsvCheck:Raising(RAISE_EXCEPTION)];
        [pPool drain];
    }
    EXPECT(lBefore > 0);
#if !defined(__SANITIZE_ADDRESS__) && !defined(KZEKAMOK_SANITIZED)
    EXPECT(ResidentPages() - lBefore < KEPT_PAGES);
#endif
}

CASE(RepeatedDocumentsDoNotGrow)
{
    enum
    {
        WARM_UP_DOCUMENTS = 20,
        DOCUMENTS = 120
    };
    KZICsvConvMokEka* pConverter = Converter();
    [pConverter ELCsvCheck:strSample Param01:1];
    long lBefore = 0;
    for (int n = 0; n < WARM_UP_DOCUMENTS + DOCUMENTS; ++n) {
        NSAutoreleasePool* pPool = [[NSAutoreleasePool alloc] init];
        if (n == WARM_UP_DOCUMENTS)
            lBefore = ResidentPages();
        EXPECT([[ConvertKept(pConverter, @"見本") MokData] length] > 10000);
        [pPool drain];
    }
    EXPECT(lBefore > 0);
#if !defined(__SANITIZE_ADDRESS__) && !defined(KZEKAMOK_SANITIZED)
    EXPECT(ResidentPages() - lBefore < 4 * KEPT_PAGES);
#endif
}

// --- exceptions ---

CASE(AnArgumentThatRaisesLeavesFiveEmptyTexts)
{
    ExpectFields([Converter() CsvCheck:Raising(RAISE_EXCEPTION)], @"", @"", @"", @"", @"");
}

CASE(AnArgumentThatRaisesAnotherObjectLeavesFiveEmptyTexts)
{
    ExpectFields([Converter() CsvCheck:Raising(RAISE_TEXT)], @"", @"", @"", @"", @"");
}

CASE(AnArgumentThatThrowsInCppLeavesFiveEmptyTexts)
{
    ExpectFields([Converter() CsvCheck:Raising(THROW_CPP)], @"", @"", @"", @"", @"");
}

CASE(ALaterArgumentThatRaisesKeepsTheRequestFromRunning)
{
    NSString* const strPath = @"not-written.csv";
    unlink([strPath fileSystemRepresentation]);
    ExpectFields([Converter() CsvWrite:strPath Param01:Raising(RAISE_EXCEPTION)], @"", @"", @"",
                 @"", @"");
    EXPECT(access([strPath fileSystemRepresentation], F_OK) != 0);
}

CASE(AfterAnExceptionTheNextRequestRuns)
{
    KZICsvConvMokEka* pConverter = Converter();
    [pConverter CsvCheck:Raising(RAISE_EXCEPTION)];
    ExpectFields([pConverter CsvCheck:strSample], @"S_OK", @"", @"", @"PGE5020", @"");
}

CASE(AKeySurvivesACallThatBrokeOff)
{
    KZICsvConvMokEka* pConverter = Converter();
    [pConverter ELCsvCheck:strSample Param01:1];
    ExpectFields(ConvertKept(pConverter, Raising(RAISE_EXCEPTION)), @"", @"", @"", @"", @"");
    EXPECT_TEXT([ConvertKept(pConverter, @"見本") Result], @"S_OK");
}

static void RaiseInsteadOfSetting(id pSelf, SEL pSelector, NSString* strText)
{
    (void)pSelf;
    (void)pSelector;
    if ([strText length] > 0)
        [NSException raise:@"TestException" format:@"raised by a test"];
}

CASE(AnExceptionWhileCopyingKeepsTheFieldsCopiedBefore)
{
    KZICsvConvMokEka* pConverter = Converter();
    const IMP pSetter = Exchange([KZIConvertResultEka class], @selector(setResult:),
                                 (IMP)(void (*)(void))RaiseInsteadOfSetting);
    KZIConvertResultEka* pResult = [pConverter ELCsvCheck:strSample Param01:1];
    Exchange([KZIConvertResultEka class], @selector(setResult:), pSetter);
    // The procedure id and the count come before the result, the details after it.
    EXPECT_TEXT([pResult ProcId], @"PGE5020");
    EXPECT_TEXT([pResult RecordCount], @"52");
    EXPECT_TEXT([pResult Result], nil);
}

static NSMutableArray* listSetter;

static void NoteSetter(id pSelf, SEL pSelector, NSString* strText)
{
    (void)pSelf;
    (void)strText;
    [listSetter addObject:NSStringFromSelector(pSelector)];
}

/* The setters of a result that a request calls, in order, without those of its beginning. */
static NSString* SettersOf(KZIConvertResultEka* (*pRequest)(KZICsvConvMokEka* pConverter))
{
    SEL const SETTERS[] = {@selector(setResult:), @selector(setDetailErrorInfo:),
                           @selector(setRecordCount:), @selector(setProcId:),
                           @selector(setMokData:)};
    enum
    {
        COUNT = sizeof SETTERS / sizeof *SETTERS
    };
    IMP listBefore[COUNT];
    KZICsvConvMokEka* pConverter = Converter();
    listSetter = [NSMutableArray array];
    for (int n = 0; n < COUNT; ++n)
        listBefore[n] = Exchange([KZIConvertResultEka class], SETTERS[n],
                                 (IMP)(void (*)(void))NoteSetter);
    pRequest(pConverter);
    for (int n = 0; n < COUNT; ++n)
        Exchange([KZIConvertResultEka class], SETTERS[n], listBefore[n]);
    // The five fields are made empty first.
    [listSetter removeObjectsInRange:NSMakeRange(0, COUNT)];
    return [listSetter componentsJoinedByString:@" "];
}

static KZIConvertResultEka* RequestCheck(KZICsvConvMokEka* pConverter)
{
    return [pConverter CsvCheck:nil];
}

static KZIConvertResultEka* RequestCheckFinance(KZICsvConvMokEka* pConverter)
{
    return [pConverter CsvCheckFinance:nil];
}

static KZIConvertResultEka* RequestCheckCrossBorder(KZICsvConvMokEka* pConverter)
{
    return [pConverter CsvCheckCrossBorder:nil];
}

static KZIConvertResultEka* RequestElCheck(KZICsvConvMokEka* pConverter)
{
    return [pConverter ELCsvCheck:nil Param01:1];
}

static KZIConvertResultEka* RequestElCheckFinance(KZICsvConvMokEka* pConverter)
{
    return [pConverter ELCsvCheckFinance:nil csvDistKey:1];
}

static KZIConvertResultEka* RequestElCheckCrossBorder(KZICsvConvMokEka* pConverter)
{
    return [pConverter ELCsvCheckCrossBorder:nil csvDistKey:1];
}

static KZIConvertResultEka* RequestWrite(KZICsvConvMokEka* pConverter)
{
    return [pConverter CsvWrite:nil Param01:nil];
}

static KZIConvertResultEka* RequestConvert(KZICsvConvMokEka* pConverter)
{
    return [pConverter CsvConvMok:nil
                          Param01:nil
                          Param02:nil
                          Param03:nil
                          Param04:nil
                          Param05:nil
                          Param06:nil
                          Param07:nil
                          Param08:nil
                          Param09:nil
                          Param10:nil
                          Param11:nil
                          Param12:nil
                          Param13:nil];
}

static KZIConvertResultEka* RequestElConvert(KZICsvConvMokEka* pConverter)
{
    return ConvertKept(pConverter, nil);
}

CASE(AChecksFieldsAreCopiedInTheirOrder)
{
    NSString* const strOrder = @"setProcId: setResult: setDetailErrorInfo:";
    EXPECT_TEXT(SettersOf(RequestCheck), strOrder);
    EXPECT_TEXT(SettersOf(RequestCheckFinance), strOrder);
    EXPECT_TEXT(SettersOf(RequestCheckCrossBorder), strOrder);
}

CASE(AnElChecksFieldsAreCopiedInTheirOrder)
{
    NSString* const strOrder = @"setProcId: setRecordCount: setResult: setDetailErrorInfo:";
    EXPECT_TEXT(SettersOf(RequestElCheck), strOrder);
    EXPECT_TEXT(SettersOf(RequestElCheckFinance), strOrder);
    EXPECT_TEXT(SettersOf(RequestElCheckCrossBorder), strOrder);
}

CASE(AConversionsFieldsAreCopiedInTheirOrder)
{
    EXPECT_TEXT(SettersOf(RequestConvert), @"setResult: setDetailErrorInfo:");
    EXPECT_TEXT(SettersOf(RequestWrite), @"setResult: setDetailErrorInfo:");
}

CASE(AnElConversionsFieldsAreCopiedInTheirOrder)
{
    EXPECT_TEXT(SettersOf(RequestElConvert), @"setResult: setDetailErrorInfo: setMokData:");
}

static id GiveNil(id pSelf, SEL pSelector)
{
    (void)pSelector;
    [pSelf release];
    return nil;
}

CASE(AResultThatCannotBeMadeGivesNilAndNoRequest)
{
    KZICsvConvMokEka* pConverter = Converter();
    NSString* const strPath = @"not-written.csv";
    unlink([strPath fileSystemRepresentation]);
    class_addMethod([KZIConvertResultEka class], @selector(init), (IMP)(void (*)(void))GiveNil, "@@:");
    const IMP pInit = [NSObject instanceMethodForSelector:@selector(init)];
    KZIConvertResultEka* pResult = [pConverter CsvWrite:strPath Param01:@"a"];
    Exchange([KZIConvertResultEka class], @selector(init), pInit);
    EXPECT(pResult == nil);
    EXPECT(access([strPath fileSystemRepresentation], F_OK) != 0);
}

// --- Terminate ---

CASE(TerminateTwiceDoesNoHarm)
{
    KZICsvConvMokEka* pConverter = Converter();
    [pConverter Terminate];
    [pConverter Terminate];
    ExpectFields([pConverter CsvCheck:strSample], @"S_OK", @"", @"", @"PGE5020", @"");
}

CASE(TerminateEndsTheKeysOfEveryObject)
{
    KZICsvConvMokEka* pConverter = Converter();
    [pConverter ELCsvCheck:strSample Param01:1];
    [[[[KZICsvConvMokEka alloc] init] autorelease] Terminate];
    EXPECT_TEXT([ConvertKept(pConverter, @"見本") DetailErrorInfo], @"9999-00001-HE70013E");
}

CASE(AKeyOutlivesTheObjectThatKeptIt)
{
    Converter();
    KZICsvConvMokEka* pChecker = [[KZICsvConvMokEka alloc] init];
    ExpectFields([pChecker ELCsvCheck:strSample Param01:1], @"S_OK", @"", @"52", @"PGE5020", @"");
    [pChecker release];
    EXPECT_TEXT([ConvertKept([[[KZICsvConvMokEka alloc] init] autorelease], @"見本") Result],
                @"S_OK");
}

CASE(ARefusedFileTellsItsErrors)
{
    KZIConvertResultEka* pResult = [Converter() CsvCheck:strRefused];
    EXPECT_TEXT([pResult Result], @"E_FAIL");
    EXPECT([[pResult DetailErrorInfo] hasPrefix:@"0002-00002-HE70009E,"]);
    EXPECT_TEXT([pResult ProcId], @"");
}

/* Arguments: a file that passes, one that is refused, the report. */
int main(int nCount, char** szArguments)
{
    if (nCount != 4) {
        fputs("usage: PASSING.csv REFUSED.csv REPORT.xml\n", stderr);
        return 2;
    }
    NSAutoreleasePool* pPool = [[NSAutoreleasePool alloc] init];
    strSample = [NSString stringWithUTF8String:szArguments[1]];
    strRefused = [NSString stringWithUTF8String:szArguments[2]];
    const int nFailed = RunCases(szArguments[3]);
    [Converter() Terminate];
    [pPool drain];
    return nFailed == 0 ? 0 : 1;
}
