/// \file
/// Everything that a C++ host of the library needs.
#pragma once

#include <KZEkaMok/KZEkaMokConstants.h>
#include <KZEkaMok/KZEkaMokExport.h>
#include <KZEkaMok/KZIConvertResultEka.h>
#include <KZEkaMok/KZICsvConvMokEka.h>
