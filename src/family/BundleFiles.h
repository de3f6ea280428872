// Names of the resource folder and of what lies in it.
#pragma once

namespace BundleFiles {

/// The environment variable that names the folder.
inline constexpr const char* VARIABLE = "KZEKAMOK_BUNDLE";
inline constexpr const char* FOLDER = "KZEkaMok.bundle";
/// Definitions of the base family.
inline constexpr const char* BASE_DEFINITION = "KZEkaDefine.xml";
inline constexpr const char* TAX_OFFICES = "TaxOffices.xml";
/// Folders of the families whose procedures have files of their own.
inline constexpr const char* FINANCE = "Finance";
inline constexpr const char* CROSS_BORDER = "CrossBorder";

}  // namespace BundleFiles
