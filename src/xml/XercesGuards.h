// Guards for what the XML library hands out.
#pragma once

#include <xercesc/util/XercesDefs.hpp>

#include <string>

/// Starts the XML library and ends it again; such pairs nest by the library's own counter.
class XercesSession
{
public:
    /// Throws if the library can't start. After a start that broke off in the middle it never can
    /// again: the library takes itself for running then, and every use of it would crash.
    XercesSession();
    ~XercesSession();
    XercesSession(const XercesSession&) = delete;
    XercesSession& operator=(const XercesSession&) = delete;

private:
    static inline int m_nRunning = 0;  ///< sessions of this process
    static inline bool m_bBroken = false;
};

/// A text of the XML library as UTF-8.
class XMLChToChar
{
public:
    explicit XMLChToChar(const XMLCh* szText);
    const std::string& Get() const { return m_strText; }

private:
    std::string m_strText;
};

/// A UTF-8 text as the XML library's. The library must be running. Throws if it is not well-formed.
class CharToXMLCh
{
public:
    explicit CharToXMLCh(const char* szText);
    const XMLCh* Get() const { return m_strText.c_str(); }

private:
    std::u16string m_strText;
};
