#pragma once

namespace quillon {

/// Makes this process give memory back once it is done with it, at the price of fetching it anew.
/// For one that lives for weeks and works for seconds. Threads that run already keep their heaps.
void giveMemoryBack();

} // namespace quillon
