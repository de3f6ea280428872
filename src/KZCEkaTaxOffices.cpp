#include "KZCEkaTaxOffices.h"

#include "KZCDebugDump.h"
#include "KZCEkaCommon.h"
#include "KZCEkaXDOM.h"
#include "fault/Fault.h"
#include "text/CText.h"
#include "text/LostText.h"

namespace {

constexpr unsigned short TAX_OFFICES_ID = 203;
/// The one kind of office that counts.
constexpr const char* TAX_OFFICE_TYPE = "5";

}  // namespace

KZCEkaTaxOffices* KZCEkaTaxOffices::instance()
{
    if (!m_pInstance)
        m_pInstance = std::make_unique<KZCEkaTaxOffices>();
    return m_pInstance.get();
}

void KZCEkaTaxOffices::destroy()
{
    m_pInstance.reset();
}

void KZCEkaTaxOffices::Initialize()
{
    constexpr const char* FUNCTION = "KZCEkaTaxOffices::Initialize";
    if (m_pOffices)
        return;
    try {
        const std::string strPath = KZCEkaCommon::LoadResoucePath(TAX_OFFICES_ID, "XML_DAT");
        LostText::Forget();
        KZCEkaXDOM dom;
        if (!dom.Initialize() || !dom.Parse(strPath.c_str()))
            RaiseFault(FUNCTION, "TaxOffices.xmlの読み込みでエラーが発生しました。");

        auto pOffices = std::make_unique<OfficeMap>();
        dom.MoveRoot();
        for (long lMove = dom.MoveFirstChild(); lMove == STATUS_OK; lMove = dom.MoveNextSibling()) {
            if (dom.GetNodeName() == "TaxOffice" &&
                dom.GetAttribute("OfficeType") == TAX_OFFICE_TYPE)
                pOffices->try_emplace(dom.GetAttribute("OfficeCode"),
                                      dom.GetAttribute("OfficeName"));
        }
        LostText::Check();  // else the codes and names would stay wrong until destroy
        m_pOffices = std::move(pOffices);
    } catch (...) {
        RaiseFault(FUNCTION, UNEXPECTED_ERROR);
    }
}

bool KZCEkaTaxOffices::IsExistCode(const char* szCode) const
{
    return Offices("KZCEkaTaxOffices::IsExistCode").contains(CText::OrEmpty(szCode));
}

bool KZCEkaTaxOffices::IsValidName(const char* szCode, const char* szName) const
{
    const OfficeMap& offices = Offices("KZCEkaTaxOffices::IsValidName");
    const auto pOffice = offices.find(CText::OrEmpty(szCode));
    return pOffice != offices.end() && pOffice->second == CText::OrEmpty(szName);
}

const KZCEkaTaxOffices::OfficeMap& KZCEkaTaxOffices::Offices(const char* szFunction) const
{
    if (!m_pOffices)
        RaiseFault(szFunction, "DOMの操作に失敗しました。");
    return *m_pOffices;
}
