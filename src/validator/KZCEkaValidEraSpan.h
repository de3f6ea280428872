#pragma once

#include <span>

#include "EraTable.h"
#include "KZCEkaValidDate.h"

/// Base of the checks that an era date exists: it lies within the span of its era.
class KZCEkaValidEraSpan : public KZCEkaValidDate
{
public:
    KZCEkaValidEraSpan(long lColumn,
                       KZCEkaMessage_t eMessage,
                       std::span<const EraTable::Span> spans);

protected:
    KZCEkaMessage_t _validate(const char* szValue) override;

private:
    std::span<const EraTable::Span> m_spans;
};
