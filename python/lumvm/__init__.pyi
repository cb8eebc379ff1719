from typing import Optional

from lumvm import high as high, low as low, mid as mid
from lumvm._functions import *

__version__: str
library: str

def layer() -> str: ...
def set_layer(name: Optional[str]) -> None: ...
