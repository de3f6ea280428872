// The smallest texts of a resource folder with which a file can be checked and converted.
#pragma once

/// One form of three columns, type id "003": a number that has to be there and a text of at most 10
/// bytes. The record `003,12,ab` passes and gives
/// <GEZ030 ...><GEZ03000><GEZ03010>12</GEZ03010><GEZ03020>ab</GEZ03020></GEZ03000></GEZ030>.
inline constexpr const char* SMALL_DEFINITION = R"(<?xml version="1.0" encoding="UTF-8"?>
<define>
  <report id="003" columnNum="3" procId="PGE5030" procVR="1.0" reportId="GEZ030" reportVR="2.0">
    <item type="TAG" id="GEZ03000" parent="GEZ030"/>
    <item type="Normal" id="GEZ03010" parent="GEZ03000" column="2">
      <valid id="exist"/>
      <valid id="number"/>
    </item>
    <item type="Normal" id="GEZ03020" parent="GEZ03000" column="3">
      <valid id="length" max="10"/>
    </item>
  </report>
</define>
)";

/// Two offices that count and, between them, one of another type.
inline constexpr const char* SMALL_TAX_OFFICES = R"(<?xml version="1.0" encoding="UTF-8"?>
<TaxOffices>
  <TaxOffice OfficeType="5" OfficeCode="00101" OfficeName="青葉"/>
  <TaxOffice OfficeType="1" OfficeCode="00102" OfficeName="白樺"/>
  <TaxOffice OfficeType="5" OfficeCode="00103" OfficeName="紅葉"/>
</TaxOffices>
)";
