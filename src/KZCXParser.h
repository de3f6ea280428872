// The abstract form of a parser.
#pragma once

class KZCXParser
{
public:
    virtual ~KZCXParser() = default;

    virtual bool Initialize() { return false; }
    virtual void Terminate() {}
    /// \param szText  Document text. \param szBufferId  Name of the source in messages.
    virtual bool Parse(const char* /*szText*/,
                       const char* /*szBufferId*/,
                       const char* /*szEncoding*/)
    {
        return false;
    }
};
