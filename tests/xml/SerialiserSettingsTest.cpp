#include "xml/SerialiserSettings.h"

#include <gtest/gtest.h>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/util/XMLUni.hpp>

#include <memory>

#include "support/ResetState.h"
#include "xml/XercesGuards.h"

namespace {

class SerialiserSettingsTest : public ResetState
{};

TEST_F(SerialiserSettingsTest, NewLinesAreFourCharactersAndSectionsStayWhole)
{
    xercesc::DOMImplementationLS* pImplementation =
        xercesc::DOMImplementationRegistry::getDOMImplementation(CharToXMLCh("LS").Get());
    xercesc::DOMLSSerializer* pSerialiser = pImplementation->createLSSerializer();
    ApplySerialiserSettings(*pSerialiser);
    EXPECT_EQ(XMLChToChar(pSerialiser->getNewLine()).Get(), "_r_n");
    EXPECT_EQ(
        pSerialiser->getDomConfig()->getParameter(xercesc::XMLUni::fgDOMWRTSplitCdataSections),
        static_cast<const void*>(nullptr));
    pSerialiser->release();
}

}  // namespace
