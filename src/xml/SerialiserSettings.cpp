#include "xml/SerialiserSettings.h"

#include <xercesc/dom/DOMConfiguration.hpp>
#include <xercesc/dom/DOMLSSerializer.hpp>
#include <xercesc/util/XMLUni.hpp>

#include "xml/XercesGuards.h"

void ApplySerialiserSettings(xercesc::DOMLSSerializer& serialiser)
{
    xercesc::DOMConfiguration& configuration = *serialiser.getDomConfig();
    if (configuration.canSetParameter(xercesc::XMLUni::fgDOMWRTSplitCdataSections, false))
        configuration.setParameter(xercesc::XMLUni::fgDOMWRTSplitCdataSections, false);
    // No line end, and wanted as it stands.
    const CharToXMLCh newLine("_r_n");
    serialiser.setNewLine(newLine.Get());
}
