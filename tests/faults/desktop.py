def cases(): return []
