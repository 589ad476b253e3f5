#pragma once

// The map page as the build stored it: encrypted (see MapPageCipher). The bytes are made
// from Resources/map/map.html by tools/encrypt_page.
extern const unsigned char kMapPageData[];
extern const int kMapPageSize;
