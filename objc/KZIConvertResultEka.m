#import <KZEkaMok/KZEkaMokObjC.h>

@implementation KZIConvertResultEka

@synthesize Result = m_strResult;
@synthesize DetailErrorInfo = m_strDetailErrorInfo;
@synthesize RecordCount = m_strRecordCount;
@synthesize ProcId = m_strProcId;
@synthesize MokData = m_strMokData;

- (void)initialize
{
    [self setResult:@""];
    [self setDetailErrorInfo:@""];
    [self setRecordCount:@""];
    [self setProcId:@""];
    [self setMokData:@""];
}

- (void)dealloc
{
    [m_strResult release];
    [m_strDetailErrorInfo release];
    [m_strRecordCount release];
    [m_strProcId release];
    [m_strMokData release];
    [super dealloc];
}

@end
