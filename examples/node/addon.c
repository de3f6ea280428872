/* A Node addon for three operations of the library; the others are added in the same way.
 *
 *     csvCheck(path)                elCsvCheck(path, key)
 *     elCsvConvMok(key, ...texts)   terminate()
 *
 * A text may be null. The first three return an object with the five fields of a result; what can't
 * be handed over as asked throws a TypeError. */
#include <KZEkaMok/KZEkaMokC.h>
#include <node_api.h>
#include <stdlib.h>

enum
{
    MAX_ARGUMENTS = 12
};

/* The arguments of a call, taken over from JavaScript. */
typedef struct Arguments
{
    char* aszText[MAX_ARGUMENTS]; /* UTF-8; null for null, undefined and numbers */
    int64_t lKey;                 /* the number among them */
} Arguments;

static void FreeArguments(Arguments* pArguments)
{
    size_t n;
    for (n = 0; n < MAX_ARGUMENTS; ++n)
        free(pArguments->aszText[n]);
}

/* Returns null if there is no memory. */
static char* TakeText(napi_env env, napi_value value)
{
    size_t nLength = 0;
    char* szText;
    napi_get_value_string_utf8(env, value, NULL, 0, &nLength);
    szText = malloc(nLength + 1);
    if (szText != NULL)
        napi_get_value_string_utf8(env, value, szText, nLength + 1, &nLength);
    return szText;
}

/* Returns 0 with an exception pending if an argument is of another kind. */
static int TakeArguments(napi_env env, napi_callback_info info, Arguments* pArguments)
{
    napi_value aValue[MAX_ARGUMENTS];
    size_t nCount = MAX_ARGUMENTS;
    size_t n;
    *pArguments = (Arguments){{NULL}, 0};
    napi_get_cb_info(env, info, &nCount, aValue, NULL, NULL);
    for (n = 0; n < MAX_ARGUMENTS; ++n) {
        napi_valuetype eType = napi_undefined;
        napi_typeof(env, aValue[n], &eType);
        if (eType == napi_number)
            napi_get_value_int64(env, aValue[n], &pArguments->lKey);
        else if (eType == napi_string)
            pArguments->aszText[n] = TakeText(env, aValue[n]);
        if ((eType == napi_string && pArguments->aszText[n] == NULL) ||
            (eType != napi_number && eType != napi_string && eType != napi_null &&
             eType != napi_undefined)) {
            napi_throw_type_error(env, NULL, "an argument is neither text nor number nor null");
            FreeArguments(pArguments);
            return 0;
        }
    }
    return 1;
}

static void SetField(napi_env env, napi_value object, const char* szName, const char* szText)
{
    napi_value value;
    if (napi_create_string_utf8(env, szText, NAPI_AUTO_LENGTH, &value) == napi_ok)
        napi_set_named_property(env, object, szName, value);
}

/* Turns a result into an object and frees it and the arguments. */
static napi_value HandOver(napi_env env, KZEkaMokResult* pResult, Arguments* pArguments)
{
    napi_value object = NULL;
    FreeArguments(pArguments);
    if (pResult == NULL) {
        napi_throw_error(env, NULL, "no memory for a result");
        return NULL;
    }
    if (napi_create_object(env, &object) == napi_ok) {
        SetField(env, object, "result", KZEkaMokResult_Result(pResult));
        SetField(env, object, "detailErrorInfo", KZEkaMokResult_DetailErrorInfo(pResult));
        SetField(env, object, "recordCount", KZEkaMokResult_RecordCount(pResult));
        SetField(env, object, "procId", KZEkaMokResult_ProcId(pResult));
        SetField(env, object, "mokData", KZEkaMokResult_MokData(pResult));
    }
    KZEkaMokResult_Free(pResult);
    return object;
}

static napi_value CsvCheck(napi_env env, napi_callback_info info)
{
    Arguments arguments;
    if (!TakeArguments(env, info, &arguments))
        return NULL;
    return HandOver(env, KZEkaMok_CsvCheck(arguments.aszText[0]), &arguments);
}

static napi_value ELCsvCheck(napi_env env, napi_callback_info info)
{
    Arguments arguments;
    if (!TakeArguments(env, info, &arguments))
        return NULL;
    return HandOver(env, KZEkaMok_ELCsvCheck(arguments.aszText[0], arguments.lKey), &arguments);
}

static napi_value ELCsvConvMok(napi_env env, napi_callback_info info)
{
    Arguments arguments;
    char** t = arguments.aszText;
    if (!TakeArguments(env, info, &arguments))
        return NULL;
    return HandOver(env,
                    KZEkaMok_ELCsvConvMok(arguments.lKey, t[1], t[2], t[3], t[4], t[5], t[6], t[7],
                                          t[8], t[9], t[10], t[11]),
                    &arguments);
}

static napi_value Terminate(napi_env env, napi_callback_info info)
{
    (void)env;
    (void)info;
    KZEkaMok_Terminate();
    return NULL;
}

static void Export(napi_env env, napi_value exports, const char* szName, napi_callback function)
{
    napi_value value;
    if (napi_create_function(env, szName, NAPI_AUTO_LENGTH, function, NULL, &value) == napi_ok)
        napi_set_named_property(env, exports, szName, value);
}

NAPI_MODULE_INIT()
{
    Export(env, exports, "csvCheck", CsvCheck);
    Export(env, exports, "elCsvCheck", ELCsvCheck);
    Export(env, exports, "elCsvConvMok", ELCsvConvMok);
    Export(env, exports, "terminate", Terminate);
    return exports;
}
