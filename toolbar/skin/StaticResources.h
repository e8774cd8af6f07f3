// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

/**
 * A program gets the resources and translations of a static library only if code that it is linked
 * with refers to them. Whatever a host may begin with calls this, so that the host need not. The
 * resources are then there before main(). A shared library has them always.
 */
#ifdef MRTOOLBAR_STATIC
void keepStaticResources();
#else
inline void keepStaticResources() {}
#endif
