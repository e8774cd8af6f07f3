# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

"""What the section [made] of the sources of OFD files may call."""

from make_samples import font, picture  # noqa: F401
